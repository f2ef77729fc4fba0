#include <QCoreApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <random>

#include "Comparison.h"
#include "RawFile.h"
#include "SampleFile.h"
#include "league/clsDivision.h"
#include "registration/clsRegistration.h"
#include "setup/clsSchoolName.h"

// Record classes beside the engine itself: finding, opening, walking, saving.

namespace {

using RawRow = std::vector<std::variant<qint64, QString>>;

struct Child {
    QString entry;  ///< what a list calls it
    QByteArray last, first, birth;
};

/// Some children in the order of no index.
std::vector<Child> someChildren(const datafile::Database& database) {
    datafile::Recordset rows = database.openRecordset(
        "SELECT [PlayerLastName], [PlayerFirstName], [PlayerBirthDate] FROM tblRegistration ORDER BY [PlayerId]");
    const int count = rows.recordCount();
    std::vector<Child> children;
    std::mt19937 chance(1);
    for (int i = 0; !rows.eof(); rows.moveNext(), ++i) {
        if (static_cast<int>(chance() % static_cast<unsigned>(count)) >= 2000) continue;
        const PlayerKey key{rows.text("PlayerLastName"), rows.text("PlayerFirstName"), rows.date("PlayerBirthDate")};
        children.push_back(
            {key.text(), key.lastName.toUtf8(), key.firstName.toUtf8(), rows.text("PlayerBirthDate").toUtf8()});
    }
    std::shuffle(children.begin(), children.end(), chance);
    return children;
}

std::vector<QString> namesIn(const datafile::Database& database, const QString& table, const QString& column) {
    return database.readList("SELECT * FROM " + table + " WHERE [DeletedFlag] = False", column);
}

/// One of a list after the other, without end.
template <class Item>
class Round {
public:
    explicit Round(std::vector<Item> items) : items_(std::move(items)) {}
    const Item& next() { return items_[++at_ % items_.size()]; }

private:
    std::vector<Item> items_;
    size_t at_ = 0;
};

/// All that the measurements of one league stand on.
class Measurements {
public:
    explicit Measurements(int players) : league_(players), raw_(league_.context.dataFilePath) {}

    void addTo(Comparison& comparison) {
        addFinds(comparison);
        addOpening(comparison);
        addWalk(comparison);
        addSave(comparison);
    }

private:
    Comparison::Subject subject(const QString& what, const Aim& aim) const { return {what, league_.size, aim}; }

    void addFinds(Comparison& comparison) {
        const Aim aim{.times = 4, .total = 10e-6};
        comparison.add(
            subject("find a player by list entry", aim),
            [this] { player_.FindPlayerRecord(ours_.next().entry, false, false); },
            [this] { rawKeyOf(theirs_.next()); });
        comparison.add(
            subject("the same, and load it", {.times = 4}),
            [this] { player_.FindPlayerRecord(ours_.next().entry, false, true); },
            [this] {
                byId_.bind(1, rawKeyOf(theirs_.next()));
                byId_.step();
                byId_.readRow(row_);
                byId_.reset();
            });
        comparison.add(
            subject("find a division by name", aim),
            [this] { division_.FindDivRecord(divisions_.next(), false, false); },
            [this] { rawByName(divisionByName_, rawDivisions_.next()); });
        comparison.add(
            subject("find a school by name", aim), [this] { school_.FindSchoolRecord(schools_.next(), false, false); },
            [this] { rawByName(schoolByName_, rawSchools_.next()); });
    }

    void addOpening(Comparison& comparison) {
        const auto open = [this] {
            clsRegistration player(league_.context);
            benchmark::DoNotOptimize(player.PlayerId());
        };
        const auto rawOpen = [this] {
            RawStatement first(raw_, "SELECT * FROM tblRegistration ORDER BY rowid LIMIT 1");
            first.step();
            first.readRow(row_);
        };
        comparison.add(subject("open the players, stand on the first", {.total = 5e-3}), open, rawOpen);
    }

    void addWalk(Comparison& comparison) {
        const auto walk = [this] {
            clsRegistration player(league_.context);
            for (int i = player.recordCount(); i > 1; --i) player.PlayerMove(MoveNext);
        };
        const auto rawWalk = [this] {
            while (all_.step()) all_.readRow(row_);
            all_.reset();
        };
        comparison.add(subject("walk through all players and columns", {.times = 2}), walk, rawWalk);
    }

    void addSave(Comparison& comparison) {
        const auto save = [this] {
            saved_.PlayerCity = ++saves_ % 2 ? "Oakville" : "Milford";
            QElapsedTimer timer;
            timer.start();
            saved_.SavePlayerRecord();
            return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
        };
        const auto rawSave = [this] {
            const QByteArray city = ++saves_ % 2 ? "Oakville" : "Milford";
            QElapsedTimer timer;
            timer.start();
            update_.bind(1, QByteArrayLiteral("2026-05-16"));
            update_.bind(2, 43200);
            update_.bind(3, QByteArrayLiteral("10"));
            update_.bind(4, city);
            update_.bind(5, saved_.PlayerId());
            update_.step();
            update_.reset();
            return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
        };
        comparison.addMeasured(subject("save one changed player", {.more = 0.5e-3}), 200, save, rawSave);
    }

    qint64 rawKeyOf(const Child& child) {
        byEntry_.bind(1, child.last);
        byEntry_.bind(2, child.first);
        byEntry_.bind(3, child.birth);
        byEntry_.step();
        const qint64 key = byEntry_.number(0);
        byEntry_.reset();
        return key;
    }

    void rawByName(RawStatement& statement, const QByteArray& name) {
        statement.bind(1, 0);
        statement.bind(2, name);
        statement.step();
        benchmark::DoNotOptimize(statement.number(0));
        statement.reset();
    }

    static std::vector<QByteArray> bytesOf(const std::vector<QString>& texts) {
        std::vector<QByteArray> bytes;
        for (const QString& text : texts) bytes.push_back(text.toUtf8());
        return bytes;
    }

    SampleLeague league_;
    clsRegistration player_{league_.context};
    clsRegistration saved_{league_.context};
    clsDivision division_{league_.context};
    clsSchoolName school_{league_.context};
    Round<Child> ours_{someChildren(*league_.database)};
    Round<Child> theirs_{ours_};
    Round<QString> divisions_{namesIn(*league_.database, "tblDivision", "DivName")};
    Round<QByteArray> rawDivisions_{bytesOf(namesIn(*league_.database, "tblDivision", "DivName"))};
    Round<QString> schools_{namesIn(*league_.database, "tblSchoolInfo", "SchoolName")};
    Round<QByteArray> rawSchools_{bytesOf(namesIn(*league_.database, "tblSchoolInfo", "SchoolName"))};
    int saves_ = 0;

    RawFile raw_;
    RawRow row_;
    RawStatement byEntry_{raw_,
                          "SELECT rowid FROM tblRegistration WHERE (PlayerLastName = ? AND PlayerFirstName = ? AND "
                          "PlayerBirthDate = ?) LIMIT 1"};
    RawStatement byId_{raw_, "SELECT * FROM tblRegistration WHERE rowid = ?"};
    RawStatement all_{raw_, "SELECT * FROM tblRegistration ORDER BY rowid"};
    RawStatement divisionByName_{
        raw_, "SELECT rowid FROM tblDivision WHERE (DeletedFlag = ? AND DivName = ?) ORDER BY DivName LIMIT 1"};
    RawStatement schoolByName_{raw_,
                               "SELECT rowid FROM tblSchoolInfo WHERE (DeletedFlag = ? AND SchoolName = ?) LIMIT 1"};
    RawStatement update_{raw_,
                         "UPDATE tblRegistration SET DateStamp = ?, TimeStamp = ?, PlayerAge = ?, PlayerCity = ? "
                         "WHERE rowid = ?"};
};

}  // namespace

int main(int count, char** arguments) {
    QCoreApplication application(count, arguments);
    Comparison comparison(&count, arguments);
    std::vector<std::unique_ptr<Measurements>> all;
    for (const int players : leagueSizes) {
        all.push_back(std::make_unique<Measurements>(players));
        all.back()->addTo(comparison);
    }
    return comparison.run();
}
