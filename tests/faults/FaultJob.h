#pragma once

#include <QDir>
#include <QMap>
#include <QString>
#include <functional>

#include "store/StoreContext.h"

/// The folder with a league in which a job works; its data file is "Kestrelmoor.kmr".
class LeagueFolder : public QDir {
public:
    explicit LeagueFolder(const QString& path) : QDir(path) {}
    QString dataFile() const { return filePath(QStringLiteral("Kestrelmoor.kmr")); }
    QString safetyCopy() const { return filePath(QStringLiteral("Kestrelmoor.BKM")); }

    /// What each file says: a data file its tables and all rows, another its bytes. Raises datafile::Error when a data
    /// file is not whole.
    QMap<QString, QString> contents() const;

    /// Does a piece of work on the league without any fault, at noon of 22 April 2026 in the season 2026.
    void with(const std::function<void(StoreContext&)>& work) const;
    /// Makes the data file of a new league, and leaves it to `fill`.
    void makeLeague(const std::function<void(StoreContext&)>& fill = {}) const;
};

/// What came of a job that a fault struck.
struct Aftermath {
    const QMap<QString, QString>& before;  ///< what each file of the league said as it was prepared
    const QMap<QString, QString>& after;   ///< and with the work done
    const QMap<QString, QString>& now;     ///< and as found
    const LeagueFolder& folder;            ///< the next start may be tried on it
    bool died = false;                     ///< the program ended at the fault
    QStringList told;                      ///< what the user was told at each try

    bool saidDone() const;
};

/// Whether every change is to fail, with KESTREL_FAULTS=full in the environment, or only samples.
bool isFullSweep();

/// A piece of work on a league's files that is to be all done or not at all, whatever the disk does. A family of jobs
/// is a file of its own and a line in Jobs.h.
struct FaultJob {
    QString name;
    /// How often a fault strikes in the short form of the sweep, at changes spread over the work and with each kind in
    /// turn. In the full form each kind strikes at each change.
    int samples = 6;
    /// Makes the files as they are before the work.
    std::function<void(const LeagueFolder&)> prepare;
    /// Runs in a process of its own, which may die: does what comes before the step and gives the step, which ends
    /// with what the user is told: `done` or the text of the error. The text of an error that the step raises counts
    /// too.
    std::function<std::function<QString()>(StoreContext&)> begin;
    std::function<void(const Aftermath&)> judge = expectBeforeOrAfter;
    /// What the user does next, tried once in each of the states that are found.
    std::function<void(const Aftermath&)> next = {};

    static const QString done;
    /// Each file is what it was or what it was to become, and that which the user was told.
    static void expectBeforeOrAfter(const Aftermath& aftermath);
    /// For work without anything before it: raises, or is done.
    static std::function<std::function<QString()>(StoreContext&)> step(std::function<void(StoreContext&)> work);
};
