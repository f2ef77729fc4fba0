#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>

#include "reports/frmReports.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

/// The selection screen of reports over a new league.
class ReportsTest : public testing::Test {
protected:
    ReportsTest() { running.program.globals().organizationName = "Bracken Vale"; }
    void open() { screen = running.open("frmReports"); }
    void addPlayer(const QString& columns, const QString& values) {
        running.league.database().execute(
            QString("INSERT INTO tblRegistration (PlayerActive, PlayerBirthDate, %1) VALUES (True, #4-2-2012#, %2)")
                .arg(columns, values));
    }
    QAbstractButton* button(const char* name, int index) {
        return control<QAbstractButton>(screen, qPrintable(QString("%1%2").arg(name).arg(index)));
    }
    QAbstractButton* print() { return control<QAbstractButton>(screen, "cmdPrint"); }
    void choose(int category, int option) {
        button("optReportSelection", category)->click();
        button("optReportOptions", option)->click();
    }
    QComboBox* list(int index) { return control<QComboBox>(screen, qPrintable(QString("cboList%1").arg(index))); }
    QString label(int index) { return control<QLabel>(screen, qPrintable(QString("lblList%1").arg(index)))->text(); }
    QStringList entries(int index) {
        QStringList texts;
        for (int entry = 0; entry < list(index)->count(); ++entry) texts << list(index)->itemText(entry);
        return texts;
    }
    void pick(int index, const QString& entry) {
        list(index)->setCurrentIndex(list(index)->findText(entry));
        Q_EMIT list(index)->activated(list(index)->currentIndex());
    }
    void chooseDestination(int index) { button("optReportDestination", index)->click(); }
    std::vector<QString> shown(const char* name, int count) {
        std::vector<QString> captions;
        for (int index = 0; index < count; ++index)
            if (button(name, index)->isVisible()) captions.push_back(button(name, index)->text());
        return captions;
    }
    QString path(const char* suffix = "pdf") const {
        return running.league.folder.filePath(QString("players.") + suffix);
    }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
};
