#include <QCommandLineParser>
#include <QCoreApplication>
#include <cstdio>

#include "platform/datafile/Error.h"
#include "sample_league/SampleLeague.h"

namespace {

[[noreturn]] void refuse(const QString& text) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
    std::exit(2);
}

}  // namespace

/// kestrelmoor-sample FILE: makes a data file with a made-up league.
int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("kestrelmoor-sample");
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Makes a Kestrelmoor data file with a made-up league. The same arguments give the "
        "same league.");
    parser.addHelpOption();
    parser.addPositionalArgument("FILE", "The data file to be made; it must not exist yet.");
    parser.addOptions({{"players", "Number of children, 0 to 500000.", "number", "600"},
                       {"seed", "Any whole number; another one gives another league.", "number", "1"},
                       {"season", "Year of the season, 1950 to 2033.", "year", "2026"},
                       {"today",
                        "The day up to which the season has come, such as 2026-05-16 (which is the day of the "
                        "season that is used without this).",
                        "date"}});
    parser.process(application);

    const auto number = [&parser](const char* name) {
        bool ok = false;
        const qlonglong value = parser.value(name).toLongLong(&ok);
        if (!ok || value < 0 || value > std::numeric_limits<int>::max())
            refuse(QString("\"%1\" is no number for --%2.").arg(parser.value(name), name));
        return static_cast<int>(value);
    };
    if (parser.positionalArguments().size() != 1) refuse(parser.helpText());
    SampleOptions options{
        .players = number("players"), .seed = static_cast<quint32>(number("seed")), .season = number("season")};
    if (parser.isSet("today")) {
        options.today = QDate::fromString(parser.value("today"), Qt::ISODate);
        if (!options.today.isValid()) refuse(QString("\"%1\" is no date for --today.").arg(parser.value("today")));
    }
    try {
        makeSampleLeague(parser.positionalArguments().first(), options);
    } catch (const datafile::Error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
