#include "sample_league/SampleLeague.h"

#include <QFile>
#include <QFileInfo>

#include "platform/datafile/Workspace.h"
#include "platform/files/Files.h"
#include "sample_league/League.h"
#include "store/BaseFile.h"

namespace sample {

Saved League::saved(Chance& chance, QDate since, bool deleted) const {
    const qint64 days = since.daysTo(options.today);
    const QDate saveDay = days <= 0 ? options.today : since.addDays(chance.below(std::min<qint64>(days, 60) + 1));
    return {saveDay, chance.between(8 * 3600, 22 * 3600), deleted};
}

QStringList League::texts(const char* table, const char* column) const {
    QStringList texts;
    datafile::Recordset rows = database.openRecordset(table);
    for (rows.moveFirst(); !rows.eof(); rows.moveNext()) texts << rows.text(column);
    return texts;
}

int League::idOf(const char* table, const char* key, const char* column, const char* text) const {
    datafile::Recordset rows = database.openRecordset(table);
    rows.findFirst(QString("%1 = %2").arg(QLatin1String(column), datafile::quoted(QString::fromUtf8(text))));
    return rows.noMatch() ? 0 : static_cast<int>(rows.number(key));
}

QString dollars(int amount) { return QString("$%1.00").arg(amount); }

QString phoneNumber(int exchange, int line) { return QString("%1-%2").arg(exchange).arg(line, 4, 10, QChar('0')); }

QString filled(const QString& text, int width) {
    QString whole = text;
    while (whole.size() < width) whole += ' ' + text;
    return whole.left(width - 1) + '.';
}

namespace {

SampleOptions checked(SampleOptions options) {
    const auto refuse = [](const QString& text) { throw datafile::Error(datafile::Fault::NotAllowed, text); };
    if (options.players < 0 || options.players > mostSamplePlayers)
        refuse(QString("The number of players must be from 0 to %1.").arg(mostSamplePlayers));
    if (options.season < 1950 || options.season > 2033) refuse("The season must be a year from 1950 to 2033.");
    if (!options.today.isValid()) options.today = QDate(options.season, 5, 16);
    return options;
}

void fill(const QString& path, const SampleOptions& options) {
    datafile::Workspace workspace;
    League league{.options = options, .names = readNames(), .database = workspace.openDatabase(path)};
    datafile::Transaction transaction(league.database);
    for (const auto make :
         {makeOrganisation, makeStructure, makeFamilies, makeStaff, makeRatings, makeEquipment, makeGames})
        make(league);
    transaction.commit();
}

}  // namespace
}  // namespace sample

void makeSampleLeague(const QString& path, const SampleOptions& options) {
    Q_INIT_RESOURCE(sample_names);
    const SampleOptions wanted = sample::checked(options);
    if (QFileInfo::exists(path))
        throw datafile::Error(datafile::Fault::State, QString("The file %1 exists already.").arg(path));
    const QString folder = QFileInfo(path).absolutePath();
    if (!QFileInfo(folder).isDir())
        throw datafile::Error(datafile::Fault::NotFound, QString("There is no folder %1.").arg(folder));
    datafile::Workspace::createWhole(path, [&](const QString& made) {
        makeBaseFile(made);
        sample::fill(made, wanted);
    });
}
