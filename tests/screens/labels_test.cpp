#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QRegularExpression>

#include "reports/frmMailingLabelOptions.h"
#include "support/Printing.h"
#include "support/RunningProgram.h"

namespace {

/// Of radio buttons and check boxes only the text takes the mouse.
void tick(QWidget* screen, const char* name) { control<QAbstractButton>(screen, name)->click(); }

class LabelScreens : public testing::Test {
protected:
    void open(int option) {
        screen = running.open("frmReports");
        tick(screen, "optReportSelection9");
        tick(screen, qPrintable(QString("optReportOptions%1").arg(option)));
        tick(screen, "optReportDestination4");  // a page of HTML
    }
    void expectOptions(std::function<void(QDialog&)> drive) {
        dialogs.expectForm("frmMailingLabelOptions", std::move(drive));
        press(screen, "cmdMailingLabelOptions");
    }
    void expectReminder(const char* button) {
        dialogs.expectForm("frmLabelMsgBox", [button](QDialog& form) { press(&form, button); });
    }
    void expectStart(const char* button) {
        dialogs.expectForm("frmLabelStart", [button](QDialog& form) { press(&form, button); });
    }
    QString path() const { return running.league.folder.filePath("labels.html"); }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    Screen* screen = nullptr;
};

QString textOf(QWidget* button) { return qobject_cast<QAbstractButton*>(button)->text().remove('&'); }

}  // namespace

TEST_F(LabelScreens, OptionsFollowThePeople) {
    const QStringList expected[] = {
        {"All Registered Players (Active Players)", "All Unregistered Players (Inactive Players)",
         "Family Labels (One Label Per Family)", "Age Range (Ages entered are inclusive)"},
        {"All Active Volunteers", "All Inactive Volunteers"},
        {"All Assigned Sponsors", "All Unassigned Sponsors"},
    };
    for (int people = 0; people < 3; ++people) {
        frmMailingLabelOptions form(people, {}, dialogs);
        QStringList captions;
        for (QAbstractButton* button : form.findChildren<QAbstractButton*>(QRegularExpression("^optLabelOptions")))
            captions << textOf(button);
        EXPECT_EQ(captions, expected[people]);
        EXPECT_EQ(form.options().choice, 0);
        EXPECT_FALSE(control(&form, "txtLowerBound")->isVisibleTo(&form));
    }
    frmMailingLabelOptions held(0, {.choice = 3, .status = 2, .lowerAge = 9, .upperAge = 11}, dialogs);
    EXPECT_TRUE(control(&held, "txtLowerBound")->isVisibleTo(&held));
    EXPECT_EQ(control<QLineEdit>(&held, "txtUpperBound")->text(), "11");
    EXPECT_EQ(held.options().status, 2);
}

TEST_F(LabelScreens, AgesAreCheckedBeforeTheyAreTaken) {
    const QString both = "Please enter valid values for the Lower and Upper Age Limits.";
    const struct {
        const char *lower, *upper;
        QString title, text;
        const char* focus;
    } cases[] = {
        {"", "", "Invalid Age Bounds", both, "txtLowerBound"},
        {"", "12", "Invalid Age Bounds", both, "txtLowerBound"},
        {"9", "", "Invalid Upper Bound", "Please enter a valid value for the Upper Age Limit.", "txtUpperBound"},
        {"12", "9", "Invalid Age Range",
         "The Lower Age Limit is greater than the Upper Age Limit.\nPlease enter a valid age range.", "txtLowerBound"},
    };
    frmMailingLabelOptions form(0, {}, dialogs);
    form.show();
    tick(&form, "optLabelOptions3");
    for (const auto& each : cases) {
        control<QLineEdit>(&form, "txtLowerBound")->setText(each.lower);
        control<QLineEdit>(&form, "txtUpperBound")->setText(each.upper);
        dialogs.expectError(each.title, each.text);
        press(&form, "cmdOK");
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.focusWidget(), control(&form, each.focus)) << each.lower << "-" << each.upper;
        dialogs.verify();
    }
    control<QLineEdit>(&form, "txtUpperBound")->setText("12");
    tick(&form, "chkPlayerStatus1");
    press(&form, "cmdOK");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.options().status, 1);
    EXPECT_EQ(form.options().lowerAge, 12);
}

TEST_F(LabelScreens, LabelsBeginWhereTheSheetIsStillWhole) {
    for (const char* name : {"Day", "Poe"})
        running.league.database().execute(
            QString("INSERT INTO tblRegistration (PlayerLastName, PlayerFirstName, PlayerBirthDate, PlayerActive) "
                    "VALUES ('%1', 'A', #4-2-2014#, %2)")
                .arg(name, QLatin1String(name[0] == 'D' ? "True" : "False")));
    open(0);
    expectOptions([](QDialog& form) {
        tick(&form, "optLabelOptions1");
        press(&form, "cmdOK");
    });
    expectReminder("cmdButton1");
    expectStart("cmdLabel4");
    dialogs.expectSaveFile("Save Report", path());
    press(screen, "cmdPrint");
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(file.readAll());
    EXPECT_FALSE(html.contains("A Day"));
    EXPECT_TRUE(html.contains("A Poe"));
    EXPECT_EQ(html.left(html.indexOf("A Poe")).count("<td"), 5) << "four labels are left out";
}

TEST_F(LabelScreens, WhoStaysPrintsNothing) {
    open(2);
    expectReminder("cmdButton2");
    press(screen, "cmdPrint");
    expectReminder("cmdButton1");
    expectStart("cmdCancel");
    press(screen, "cmdPrint");
    EXPECT_FALSE(QFile::exists(path()));

    dialogs.expectForm("frmLabelMsgBox", [](QDialog& form) {
        EXPECT_EQ(form.windowTitle(), "Label Type");
        tick(&form, "chkNoShow");
        press(&form, "cmdButton2");
    });
    press(screen, "cmdPrint");
    EXPECT_EQ(running.settings.read("WindowSettings\\frmReports", "ShowLabelMsgBox"), "False");
    expectStart("cmdLabel29");
    dialogs.expectSaveFile("Save Report", path());
    dialogs.expectInformation("No Data to Report", "No data available for report.");
    press(screen, "cmdPrint");
    dialogs.verify();
}
