#pragma once

#include <QDate>
#include <QString>

/// The values of the preferences that the whole program reads, filled at start and rewritten as the preferences
/// are typed. Before that they hold the fallbacks given here. Fees are texts of the form "0.00".
struct Globals {
    QString organizationName;
    QString organizationAffiliation;
    QDate lastBackupDate;
    QString currentSeasonYear;  ///< four digits; this year's until the preferences are loaded
    bool showSplash = false;
    QString defaultFilePath;
    QString defaultDatabasePath;
    QString defaultPlayerFee = QStringLiteral("0.00");
    QString defaultSponsorFee = QStringLiteral("0.00");
    QString defaultFundRaiserFee = QStringLiteral("0.00");
    QString defaultTeamFee = QStringLiteral("0.00");
    QString defaultCity;
    QString defaultStateId;
    QString defaultZipCode;
    QString defaultPostalCode;
    QString defaultAreaCode;
    QString defaultDateFormat = QStringLiteral("M/d/yyyy");
    QString defaultAgeCutoffMonth = QStringLiteral("1");
    QString defaultAgeCutoffDay = QStringLiteral("1");
};
