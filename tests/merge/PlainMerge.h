#pragma once

#include "platform/datafile/Connection.h"
#include "platform/datafile/Database.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "store/AgeRule.h"

#include <QHash>
#include <QMap>
#include <QRegularExpression>
#include <functional>
#include <map>

/// The rules of the merge a second time, as plainly as they can be said: whole tables in memory, searched from end to
/// end, one table after the other. The program's own merge is held against it.
namespace plain {

/// A row's values by column; a null text is nothing.
struct Row {
    qint64 rowid = 0;
    QMap<QString, QString> values{};
    QString& operator[](const char* column) { return values[column]; }
    QString operator[](const char* column) const { return values.value(column); }
    qint64 number(const char* column) const { return values.value(column).toLongLong(); }
    bool deleted() const { return number("DeletedFlag") != 0; }
};
using Rows = std::vector<Row>;
using File = std::map<QString, Rows>;

inline Rows readTable(const datafile::Database& database, const QString& table) {
    datafile::Statement statement = database.prepare("SELECT rowid, * FROM " + table + " ORDER BY rowid");
    Rows rows;
    while (statement.step()) {
        Row& row = rows.emplace_back();
        row.rowid = statement.number(0);
        for (int i = 1; i < statement.columns(); ++i) {
            const datafile::Value value = statement.value(i);
            row.values[statement.name(i)] = datafile::isNull(value) ? QString() : "" + datafile::toText(value);
        }
    }
    return rows;
}

inline QString lower(QString text) {
    for (QChar& letter : text)
        if (letter >= u'A' && letter <= u'Z') letter = letter.toLower();
    return text;
}
inline bool same(const QString& one, const QString& other) { return lower(one) == lower(other); }
inline QDate day(const QString& text) { return datafile::toDate(datafile::Value{text}); }

class Merge {
public:
    Merge(File& local, const File& source, const datafile::Database& about, QDateTime now, QString season)
        : local_(local), source_(source), about_(about), now_(std::move(now)), season_(std::move(season)) {}

    void run();

private:
    using Test = std::function<bool(const Row&)>;
    using Keys = QMap<QString, qint64>;

    int seconds() const { return now_.time().msecsSinceStartOfDay() / 1000; }

    /// The first live row that passes, else the first deleted one.
    static const Row* find(const Rows& rows, const Test& test) {
        for (const bool deleted : {false, true})
            for (const Row& row : rows)
                if (row.deleted() == deleted && test(row)) return &row;
        return nullptr;
    }
    Row* findLocal(const char* table, const Test& test) { return const_cast<Row*>(find(local_[table], test)); }
    /// The local row for a source row: before all others one that was saved at the same time.
    Row* findTwin(const char* table, const Row& row, const Test& test, int noTime = 1) {
        Row* same = findLocal(table, [&](const Row& each) {
            const QString time = each["TimeStamp"].isNull() ? QString::number(noTime) : each["TimeStamp"];
            return test(each) && each.deleted() == row.deleted() && time == row["TimeStamp"] &&
                   day(each["DateStamp"]).isValid() && each["DateStamp"] == row["DateStamp"];
        });
        return same ? same : findLocal(table, test);
    }
    const Row* sourceRow(const char* table, const char* id, qint64 key) const {
        return find(source_.at(table), [&](const Row& row) { return row.number(id) == key; });
    }

    Rows ordered(const char* table, const QStringList& columns) const {
        Rows rows = source_.at(table);
        std::stable_sort(rows.begin(), rows.end(), [&](const Row& one, const Row& other) {
            for (const QString& column : columns) {
                const QByteArray a = lower(one.values[column]).toUtf8();
                const QByteArray b = lower(other.values[column]).toUtf8();
                if (a != b) return a < b;
            }
            return false;
        });
        return rows;
    }

    static bool newer(const Row& source, const Row& local, int noTime = 1) {
        const QDate theirs = day(source["DateStamp"]);
        if (!theirs.isValid()) return false;
        const QDate ours = day(local["DateStamp"]).isValid() ? day(local["DateStamp"]) : QDate(1940, 1, 1);
        if (theirs != ours) return theirs > ours;
        const int ourTime = local["TimeStamp"].isNull() ? noTime : local["TimeStamp"].toInt();
        return !source["TimeStamp"].isNull() && source["TimeStamp"].toInt() > ourTime;
    }

    void copy(const char* table, Row& to, const Row& from, const Keys& keys) {
        for (const datafile::FieldDef& field : about_.table(table)->fields) {
            if (field.type == datafile::ColumnType::AutoKey) continue;
            QString text = from.values[field.name];
            if (keys.contains(field.name))
                text = QString::number(keys[field.name]);
            else if (field.type == datafile::ColumnType::Text && text.isNull())
                text = "";
            else if (field.name == u"GameTime")
                text = QTime::fromString(text, "HH:mm:ss").isValid() ? text : now_.time().toString("HH:mm:00");
            else if (field.type == datafile::ColumnType::Date && !day(text).isValid())
                text = now_.date().toString(Qt::ISODate);
            else if (field.name == u"TimeStamp" && text.isNull())
                text = QString::number(seconds());
            to.values[field.name] = text;
        }
    }
    Row& add(const char* table, const Row& from, const Keys& keys, const char* id = nullptr) {
        qint64 key = 0;
        for (const Row& row : local_[table]) key = std::max(key, row.rowid);
        Row row{key + 1};
        if (id) row[id] = QString::number(row.rowid);
        copy(table, row, from, keys);
        return local_[table].emplace_back(row);
    }

    // The local keys of what a source row refers to; 0 for none.
    qint64 byName(const char* table, const char* id, const QStringList& names, qint64 key) {
        if (key == 0) return 0;
        const Row* parent = sourceRow(table, id, key);
        if (!parent) return 0;
        const Row* ours = findLocal(table, [&](const Row& row) {
            return std::all_of(names.begin(), names.end(),
                               [&](const QString& name) { return same(row.values[name], parent->values[name]); });
        });
        return ours ? ours->number(id) : 0;
    }
    qint64 division(qint64 key) { return byName("tblDivision", "DivisionId", {"DivName"}, key); }
    qint64 sponsor(qint64 key) { return byName("tblSponsor", "SponsorId", {"SponsorName"}, key); }
    qint64 player(qint64 key) {
        return byName("tblRegistration", "PlayerId", {"PlayerLastName", "PlayerFirstName", "PlayerBirthDate"}, key);
    }
    qint64 volunteer(qint64 key) {
        return byName("tblVolunteer", "VolId", {"VolLastName", "VolFirstName", "VolHomePhone"}, key);
    }
    /// A deleted row beside a live one of its name.
    bool isShadow(const char* table, const Row& row, const std::function<bool(const Row&, const Row&)>& sameKey) {
        const Rows& rows = source_.at(table);
        return row.deleted() && std::any_of(rows.begin(), rows.end(),
                                            [&](const Row& other) { return !other.deleted() && sameKey(row, other); });
    }
    qint64 team(qint64 key, qint64 localDivision) {
        const Row* theirs = key ? sourceRow("tblTeam", "TeamId", key) : nullptr;
        const Row* ours = theirs ? findLocal("tblTeam",
                                             [&](const Row& row) {
                                                 return row.number("DivisionId") == localDivision &&
                                                        same(row["TeamName"], (*theirs)["TeamName"]);
                                             })
                                 : nullptr;
        return ours ? ours->number("TeamId") : 0;
    }

    void named(const char* table, const char* name, const char* id, bool sorted, bool addsDeleted = true,
               const char* alsoRequired = nullptr);
    void pledges();
    void divisions();
    void teams();
    void players();
    void volunteers();
    void ratings();
    void equipment();
    void assignments();
    void sizes(const char* table, const char* size, const char* text);
    void results();
    void teamFields();
    void guardianLinks();
    void staff();
    void links(const char* table, const char* column, const char* parent, const char* name, bool withPlayer);

    File& local_;
    const File source_;
    const datafile::Database& about_;
    QDateTime now_;
    QString season_;
};

inline void Merge::run() {
    named("tblSponsor", "SponsorName", "SponsorId", true, false);
    pledges();
    divisions();
    teams();
    players();
    volunteers();
    ratings();
    named("tblCertifications", "CertificationName", "CertificationId", true, true, "CertifyingOrganization");
    named("tblDifficultyRating", "DifficultyRatingText", "DifficultyRatingId", true);
    named("tblInsurance", "InsAgencyName", "InsId", true);
    named("tblVendor", "VendorName", "VendorId", true);
    equipment();
    assignments();
    named("tblField", "FieldName", "FieldId", true);
    sizes("tblHatSize", "HatSize", "HatSizeText");
    sizes("tblPantSize", "PantSize", "PantSizeText");
    sizes("tblShirtSize", "ShirtSize", "ShirtSizeText");
    sizes("tblShoeSize", "ShoeSize", "ShoeSizeText");
    sizes("tblSocksSize", "SocksSize", "SocksSizeText");
    named("tblRating", "RatingText", "RatingId", true);
    results();
    named("tblSchoolInfo", "SchoolName", "SchoolId", false);
    teamFields();
    guardianLinks();
    staff();
    named("tblVolunteerPositions", "VolPosName", "VolPosId", false);
    links("tblVolToPosition", "VolPosId", "tblVolunteerPositions", "VolPosName", true);
    links("tblVolunteerCertifications", "CertificationId", "tblCertifications", "CertificationName", false);
}

inline void Merge::named(const char* table, const char* name, const char* id, bool sorted, bool addsDeleted,
                         const char* alsoRequired) {
    for (const Row& row : ordered(table, sorted ? QStringList{name} : QStringList{})) {
        if (row[name].isEmpty() || (alsoRequired && row[alsoRequired].isEmpty())) continue;
        Row* ours = findTwin(table, row, [&](const Row& each) { return same(each[name], row[name]); });
        if (ours && newer(row, *ours)) copy(table, *ours, row, {});
        if (!ours && (addsDeleted || !row.deleted())) add(table, row, {}, id);
    }
}

inline void Merge::pledges() {
    const char* table = "tblSponsorPreviousPledge";
    for (const Row& row : source_.at(table)) {
        const qint64 owner = sponsor(row.number("SponsorId"));
        if (owner == 0) continue;
        Row* ours = findTwin(table, row, [&](const Row& each) {
            return each.number("SponsorId") == owner && same(each["PreviousPledgeYear"], row["PreviousPledgeYear"]);
        });
        if (ours && newer(row, *ours)) copy(table, *ours, row, {{"SponsorId", owner}});
        if (!ours) add(table, row, {{"SponsorId", owner}});
    }
}

inline void Merge::divisions() {
    const char* table = "tblDivision";
    for (const Row& row : ordered(table, {"DivName"})) {
        if (row["DivName"].isEmpty() || isShadow(table, row, [](const Row& one, const Row& other) {
                return same(one["DivName"], other["DivName"]);
            }))
            continue;
        const auto isIt = [&](const Row& each) { return same(each["DivName"], row["DivName"]); };
        Row* ours = findTwin(table, row, isIt);
        if (ours && ours->deleted() && !row.deleted()) ours = nullptr;  // becomes a second row
        if (ours && newer(row, *ours)) copy(table, *ours, row, {});
        if (ours) continue;
        Row& added = add(table, row, {}, "DivisionId");
        for (const char* column : {"DivAgeCutOffMonth", "DivAgeCutOffDay"})
            if (!isNumeric(added[column])) added[column] = "1";
    }
}

inline void Merge::teams() {
    const char* table = "tblTeam";
    for (const Row& row : ordered(table, {"TeamName"})) {
        if (row["TeamName"].isEmpty() || isShadow(table, row, [this](const Row& one, const Row& other) {
                return same(one["TeamName"], other["TeamName"]) &&
                       division(one.number("DivisionId")) == division(other.number("DivisionId"));
            }))
            continue;
        const Keys keys{{"DivisionId", division(row.number("DivisionId"))},
                        {"SponsorId", sponsor(row.number("SponsorId"))}};
        Row* ours = findTwin(table, row, [&](const Row& each) {
            return each.number("DivisionId") == keys["DivisionId"] && same(each["TeamName"], row["TeamName"]);
        });
        if (ours) {
            if (ours->deleted() || newer(row, *ours)) copy(table, *ours, row, keys);
            continue;
        }
        Row& added = add(table, row, keys, "TeamId");
        for (const char* column : {"TeamFeeAmount", "TeamFeePaid"})
            if (!isNumeric(added[column])) added[column] = "0";
    }
}

inline void Merge::players() {
    const char* table = "tblRegistration";
    for (const Row& row : ordered(table, {"PlayerLastName", "PlayerFirstName", "PlayerBirthDate"})) {
        if (row["PlayerLastName"].isEmpty() || row["PlayerFirstName"].isEmpty()) continue;
        const qint64 theirDivision = row.number("PlayerDivisionId");
        const qint64 ourDivision = division(theirDivision);
        const Row* theirTeam = find(source_.at("tblTeam"), [&](const Row& each) {
            return each.number("TeamId") == row.number("PlayerTeamId") && each.number("DivisionId") == theirDivision;
        });
        const Keys keys{{"PlayerDivisionId", ourDivision},
                        {"PlayerTeamId", theirTeam ? team(theirTeam->number("TeamId"), ourDivision) : 0}};
        const bool hasDate = day(row["PlayerBirthDate"]).isValid();
        const QString born = hasDate ? row["PlayerBirthDate"] : now_.date().toString(Qt::ISODate);
        const auto isIt = [&](const Row& each) {
            return same(each["PlayerLastName"], row["PlayerLastName"]) &&
                   same(each["PlayerFirstName"], row["PlayerFirstName"]) && each["PlayerBirthDate"] == born;
        };
        // an entry "Last, First - 4/2/2012" is cut at the first comma, and before a number behind " - "
        const QString first = row["PlayerFirstName"];
        static const QRegularExpression date(" - \\d+/\\d+/\\d+$");
        const bool found = hasDate && !row["PlayerLastName"].contains(',') && !first.contains(date);
        Row* ours = found ? findTwin(table, row, isIt, 0) : findLocal(table, isIt);
        Row* written = nullptr;
        if (ours && (!found || newer(row, *ours, 0))) copy(table, *(written = ours), row, keys);
        if (!ours && !row.deleted()) written = &add(table, row, keys, "PlayerId");
        if (!written) continue;
        const Row* its =
            find(local_["tblDivision"], [&](const Row& each) { return each.number("DivisionId") == ourDivision; });
        CutOff cutOff{local_["tblDefaults"].front()["DefaultAgeCutoffMonth"],
                      local_["tblDefaults"].front()["DefaultAgeCutoffDay"]};
        if (its && isNumeric((*its)["DivAgeCutOffMonth"]))
            cutOff = {(*its)["DivAgeCutOffMonth"],
                      isNumeric((*its)["DivAgeCutOffDay"]) ? (*its)["DivAgeCutOffDay"] : "1"};
        (*written)["PlayerAge"] =
            QString::number(CalculateAge(day(born).toString("M/d/yyyy"), cutOff.month, cutOff.day, season_));
    }
}

inline void Merge::volunteers() {
    const char* table = "tblVolunteer";
    const QStringList names{"VolLastName", "VolFirstName", "VolHomePhone"};
    for (const Row& row : ordered(table, names)) {
        if (std::any_of(names.begin(), names.end(), [&](const QString& name) { return row.values[name].isEmpty(); }))
            continue;
        Row* ours = findTwin(table, row, [&](const Row& each) {
            return std::all_of(names.begin(), names.end(),
                               [&](const QString& name) { return same(each.values[name], row.values[name]); });
        });
        if (ours && newer(row, *ours)) copy(table, *ours, row, {});
        if (!ours && !row.deleted()) add(table, row, {}, "VolId");
    }
}

inline void Merge::ratings() {
    const char* table = "tblAbilityRating";
    for (const Row& row : source_.at(table)) {
        const bool isPlayer = row.number("PlayerId") != 0;
        const Keys keys{{"PlayerId", player(row.number("PlayerId"))}, {"VolId", volunteer(row.number("VolId"))}};
        const char* own = isPlayer ? "PlayerId" : "VolId";
        if (keys[own] == 0) continue;
        Row* ours = findTwin(table, row, [&](const Row& each) { return each.number(own) == keys[own]; });
        if (ours && !newer(row, *ours)) continue;
        const QString comments[] = {ours ? (*ours)["PlayerComments"] : "", ours ? (*ours)["VolunteerComments"] : ""};
        Row& written = ours ? (copy(table, *ours, row, keys), *ours) : add(table, row, keys);
        written["PlayerComments"] = comments[0];
        written["VolunteerComments"] = comments[1];
    }
}

inline void Merge::equipment() {
    const char* table = "tblEquipment";
    for (const Row& row : source_.at(table)) {
        if (row["ItemName"].isEmpty()) continue;
        const Keys keys{{"VendorId", byName("tblVendor", "VendorId", {"VendorName"}, row.number("VendorId"))},
                        {"InsuranceId", byName("tblInsurance", "InsId", {"InsAgencyName"}, row.number("InsuranceId"))}};
        Row* ours = findTwin(table, row, [&](const Row& each) {
            return same(each["ItemName"], row["ItemName"]) && same(each["Description"], row["Description"]);
        });
        if (ours && newer(row, *ours)) copy(table, *ours, row, keys);
        if (!ours) add(table, row, keys, "EquipId");
    }
}

inline void Merge::assignments() {
    const char* table = "tblEquipmentAssignment";
    for (const Row& row : source_.at(table)) {
        Keys keys{
            {"DivisionId", division(row.number("DivisionId"))},
            {"PlayerId", player(row.number("PlayerId"))},
            {"VolId", volunteer(row.number("VolId"))},
            {"EquipmentId", byName("tblEquipment", "EquipId", {"ItemName", "Description"}, row.number("EquipmentId"))}};
        keys["TeamId"] = team(row.number("TeamId"), keys["DivisionId"]);
        Row* ours = findTwin(table, row, [&](const Row& each) {
            return std::all_of(keys.keyBegin(), keys.keyEnd(),
                               [&](const QString& key) { return each.values[key].toLongLong() == keys[key]; });
        });
        if (ours && newer(row, *ours)) copy(table, *ours, row, keys);
        if (ours) continue;
        Row& added = add(table, row, keys, "AssignmentId");
        for (const char* column : {"DistributionQuantity", "ReturnQuantity"})
            if (!isNumeric(added[column])) added[column] = "0";
    }
}

inline void Merge::sizes(const char* table, const char* size, const char* text) {
    for (const Row& row : ordered(table, {size})) {
        if (row[size].isEmpty() || row[text].isEmpty()) continue;
        Row* ours = findTwin(table, row, [&](const Row& each) { return same(each[text], row[text]); });
        if (ours && newer(row, *ours)) copy(table, *ours, row, {});
        if (!ours) add(table, row, {});
    }
}

inline void Merge::results() {
    struct Game {
        Row row;
        Keys keys;
    };
    std::vector<Game> games;
    const char* table = "tblResults";
    for (Row row : source_.at(table)) {
        const qint64 ours = division(row.number("DivisionId"));
        if (!day(row["GameDate"]).isValid()) row["GameDate"] = now_.date().toString(Qt::ISODate);
        games.push_back({row,
                         {{"DivisionId", ours},
                          {"HomeTeamId", team(row.number("HomeTeamId"), ours)},
                          {"VisitorTeamId", team(row.number("VisitorTeamId"), ours)}}});
    }
    std::map<qint64, QString> written;  // the source's times by local row: a missing one is written as now
    const auto isAt = [&](const Row& each, const Game& game) {
        const auto found = written.find(each.rowid);
        const QString time = found == written.end() ? each["GameTime"] : found->second;
        return QTime::fromString(time, "HH:mm:ss") == QTime::fromString(game.row["GameTime"], "HH:mm:ss");
    };
    const auto isOf = [](const Row& each, const Game& game) {
        return std::all_of(game.keys.keyBegin(), game.keys.keyEnd(),
                           [&](const QString& key) { return each.values[key].toLongLong() == game.keys[key]; }) &&
               each["GameDate"] == game.row["GameDate"];
    };
    for (const Game& game : games) {
        Row* ours = findLocal(table, [&](const Row& each) { return isOf(each, game) && isAt(each, game); });
        if (!ours)
            ours = findLocal(table, [&](const Row& each) {
                return isOf(each, game) && std::none_of(games.begin(), games.end(), [&](const Game& other) {
                           return isOf(each, other) && isAt(each, other);
                       });
            });
        if (ours)
            copy(table, *ours, game.row, game.keys);
        else
            ours = &add(table, game.row, game.keys, "GameId");
        written[ours->rowid] = game.row["GameTime"];
    }
}

inline void Merge::teamFields() {
    const char* table = "tblTeamField";
    for (const Row& row : source_.at(table)) {
        const Keys keys{{"FieldId", byName("tblField", "FieldId", {"FieldName"}, row.number("FieldId"))},
                        {"DivisionId", division(row.number("DivisionId"))}};
        if (keys["FieldId"] == 0) continue;
        if (!findLocal(table, [&](const Row& each) {
                return each.number("FieldId") == keys["FieldId"] && each.number("DivisionId") == keys["DivisionId"];
            }))
            add(table, row, keys);
    }
}

inline void Merge::guardianLinks() {
    const char* table = "tblRegistrationVolunteer";
    Rows rows = source_.at(table);
    std::stable_sort(rows.begin(), rows.end(), [](const Row& one, const Row& other) {
        return std::pair(one.number("VolId"), one.number("PlayerId")) <
               std::pair(other.number("VolId"), other.number("PlayerId"));
    });
    for (const Row& row : rows) {
        const Keys keys{{"VolId", volunteer(row.number("VolId"))}, {"PlayerId", player(row.number("PlayerId"))}};
        if (keys["VolId"] == 0 || keys["PlayerId"] == 0 || row["VolGender"].isEmpty() || row.deleted()) continue;
        if (!findLocal(table, [&](const Row& each) {
                return each.number("VolId") == keys["VolId"] && each.number("PlayerId") == keys["PlayerId"] &&
                       same(each["VolGender"], row["VolGender"]);
            }))
            add(table, row, keys);
    }
}

inline void Merge::staff() {
    struct Holder {
        Row row;
        Keys keys;
    };
    std::vector<Holder> holders;
    const char* table = "tblTeamVolunteer";
    const auto isLive = [this](const char* parents, const char* id, qint64 key) {
        return findLocal(parents, [&](const Row& each) { return each.number(id) == key && !each.deleted(); });
    };
    for (const Row& row : source_.at(table)) {
        const qint64 ours = division(row.number("DivisionId"));
        const Keys keys{{"VolId", volunteer(row.number("VolId"))},
                        {"DivisionId", ours},
                        {"TeamId", team(row.number("TeamId"), ours)}};
        if (keys["VolId"] != 0 && isLive("tblDivision", "DivisionId", ours) &&
            isLive("tblTeam", "TeamId", keys["TeamId"]))
            holders.push_back({row, keys});
    }
    const auto isOf = [](const Row& each, const Keys& keys) {
        return std::all_of(keys.keyBegin(), keys.keyEnd(),
                           [&](const QString& key) { return each.values[key].toLongLong() == keys[key]; });
    };
    const auto stamp = [this](Row& row) {
        row["DateStamp"] = now_.date().toString(Qt::ISODate);
        row["TimeStamp"] = QString::number(seconds());
    };
    for (const Holder& holder : holders) {
        Row* ours = findLocal(table, [&](const Row& each) {
            return isOf(each, holder.keys) && same(each["VolPosName"], holder.row["VolPosName"]);
        });
        if (!ours)
            ours = findLocal(table, [&](const Row& each) {
                return isOf(each, holder.keys) &&
                       std::none_of(holders.begin(), holders.end(), [&](const Holder& other) {
                           return isOf(each, other.keys) && same(each["VolPosName"], other.row["VolPosName"]);
                       });
            });
        if (ours)
            copy(table, *ours, holder.row, holder.keys);
        else
            ours = &add(table, holder.row, holder.keys);
        stamp(*ours);
    }
    if (holders.empty()) return;
    const auto age = [](const Row& row) {
        return std::tuple(row["DateStamp"].isNull() ? "1940-01-01" : row["DateStamp"],
                          row["TimeStamp"].isNull() ? 1 : row["TimeStamp"].toInt(), row.rowid);
    };
    for (Row& row : local_[table]) {
        const bool replaced =
            !row.deleted() && std::any_of(local_[table].begin(), local_[table].end(), [&](const Row& other) {
                return !other.deleted() && other["TeamId"] == row["TeamId"] &&
                       other["DivisionId"] == row["DivisionId"] && same(other["VolPosName"], row["VolPosName"]) &&
                       age(other) > age(row);
            });
        if (!replaced) continue;
        row["DeletedFlag"] = "1";
        stamp(row);
    }
}

inline void Merge::links(const char* table, const char* column, const char* parent, const char* name, bool withPlayer) {
    for (const Row& row : source_.at(table)) {
        Keys keys{{"VolId", volunteer(row.number("VolId"))},
                  {column, byName(parent, column, {name}, row.number(column))}};
        if (withPlayer) keys["PlayerId"] = player(row.number("PlayerId"));
        const bool playerUnknown = withPlayer && keys["PlayerId"] == 0 && row.number("PlayerId") != 0;
        if (keys["VolId"] == 0 || keys[column] == 0 || playerUnknown) continue;
        Row* ours = findTwin(table, row, [&](const Row& each) {
            return std::all_of(keys.keyBegin(), keys.keyEnd(),
                               [&](const QString& key) { return each.values[key].toLongLong() == keys[key]; });
        });
        if (ours && newer(row, *ours)) copy(table, *ours, row, keys);
        if (!ours) add(table, row, keys);
    }
}

}  // namespace plain
