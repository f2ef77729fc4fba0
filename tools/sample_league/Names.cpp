#include "sample_league/Names.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "platform/datafile/Error.h"
#include "sample_league/Chance.h"

namespace sample {

Names readNames() {
    QFile file(":/sample/sample_names.json");
    if (!file.open(QIODevice::ReadOnly))
        throw datafile::Error(datafile::Fault::NotFound, "The names of the sample league are missing.");
    const QJsonObject lists = QJsonDocument::fromJson(file.readAll()).object();
    const auto list = [&lists](const char* name) {
        const QJsonArray entries = lists.value(QLatin1String(name)).toArray();
        if (entries.isEmpty())
            throw datafile::Error(datafile::Fault::NotFound,
                                  QString("The sample league has no names of %1.").arg(name));
        return entries;
    };
    const auto texts = [&list](const char* name) { return QVariant(list(name).toVariantList()).toStringList(); };

    QList<City> cities;
    for (const QJsonValue& city : list("cities"))
        cities.append(
            {city["city"].toString(), city["state"].toString(), city["zip"].toString(), city["area"].toString()});
    return {.girls = texts("girls"),
            .boys = texts("boys"),
            .women = texts("women"),
            .men = texts("men"),
            .lastNames = texts("lastNames"),
            .streets = texts("streets"),
            .schools = texts("schools"),
            .teams = texts("teams"),
            .sponsors = texts("sponsors"),
            .colors = texts("colors"),
            .fields = texts("fields"),
            .occupations = texts("occupations"),
            .cities = cities};
}

// Each draw is a statement of its own, because the order within an expression is the compiler's choice.

QString personName(Chance& chance, const QStringList& firstNames, const QStringList& lastNames) {
    const QString first = chance.oneOf(firstNames);
    return first + ' ' + chance.oneOf(lastNames);
}

QString streetAddress(Chance& chance, const Names& names) {
    const int house = chance.between(100, 9900);
    return QString::number(house) + ' ' + chance.oneOf(names.streets);
}

}  // namespace sample
