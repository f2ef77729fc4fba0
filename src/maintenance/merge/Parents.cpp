#include "maintenance/merge/Parents.h"

QString folded(QString text) {
    for (qsizetype i = 0; i < text.size(); ++i)
        if (const char16_t letter = text.at(i).unicode(); letter >= u'A' && letter <= u'Z')
            text[i] = QChar(letter + (u'a' - u'A'));
    return text;
}

QString teamKey(qint64 division, const QString& foldedName) {
    return QString::number(division) + keySeparator + foldedName;
}

void Parents::rememberTeam(qint64 source, qint64 division, const QString& name) {
    teams_.insert(source, {division, name});
}

const Parents::Table* Parents::table(const char* name) const {
    const auto found = tables_.find(name);
    return found == tables_.end() ? nullptr : &found->second;
}

bool Parents::isIncomplete(const char* name) const {
    const Table* found = table(name);
    return found && found->incomplete;
}

LocalId Parents::find(const ForeignKey& column, qint64 source, qint64 sourceDivision, qint64 localDivision) const {
    if (source == 0) return {};
    if (column.within) {
        const auto team = teams_.constFind(source);
        if (team == teams_.cend() || (column.sameDivision && team->division != sourceDivision)) return {};
        return localTeams_.value(teamKey(localDivision, team->name));
    }
    const Table* found = table(column.parent);
    return found ? found->ids.value(source) : LocalId{};
}
