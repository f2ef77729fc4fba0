#include "platform/widgets/ChoiceBox.h"
#include "support/RunningProgram.h"

#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QPlainTextEdit>

namespace {

constexpr char teamPart[] =
    "[TeamInfo1]\r\nTeam Name=Minors Blues\r\nDivision=Minors\r\nCoach Name=Zo\xeb O'Hara\r\n"
    "Coach Address=1 Elm, \"B\"\r\nCoach Home Phone=555-0101\r\nCoach Work Phone=555-0102\r\nCoach Notes=? calls "
    "late\r\n"
    "UniqueID=Minors Blues\r\n3 Digit Code=01\r\nLong Code=Team1\r\n\r\n"
    "[TeamInfo2]\r\nTeam Name=Minors Reds\r\nDivision=Minors\r\nCoach Name=\r\nCoach Address=\r\nCoach Home Phone=\r\n"
    "Coach Work Phone=\r\nCoach Notes=\r\nUniqueID=Minors Reds\r\n3 Digit Code=02\r\nLong Code=Team2\r\n\r\n"
    "[Team Number]\r\nTotal Teams=2\r\n\r\n";
constexpr char divisionPart[] =
    "[DivisionInfo1]\r\nDivision Name=%1\r\n\r\n[Division Number]\r\nTotal Divisions=1\r\n\r\n";
constexpr char fieldPart[] =
    "[FieldInfo1]\r\nField Name=\r\nField Address=\r\nField Phone=\r\nHome Teams=\r\nDivisions=Minors\r\n"
    "Field Directions=\r\nTime Slot Name= | Minors\r\n3 Digit Code=01\r\nGame Interval=\r\nP=1\r\n\r\n"
    "[FieldInfo2]\r\nField Name=Oak Park\r\nField Address=9 Oak\r\nField Phone=5550199\r\nHome Teams=\r\n"
    "Divisions=Minors\r\nField Directions=Left, left.\r\nTime Slot Name=Oak Park | Minors\r\n3 Digit Code=02\r\n"
    "Game Interval=\r\nP=1\r\n\r\n"
    "[FieldInfo3]\r\nField Name=\r\nField Address=\r\nField Phone=\r\nHome Teams=\r\nDivisions=Minors\r\n"
    "Field Directions=\r\nTime Slot Name=Oak Park | Minors\r\n3 Digit Code=03\r\nGame Interval=\r\nP=1\r\n\r\n"
    "[Field Number]\r\nTotal Fields=3\r\n\r\n";
constexpr char lastPart[] =
    "[Game Interval]\r\nHourInterval=2\r\nMinutesInterval=0\r\n\r\n[Scheduled Dates]\r\nTotal Dates=0\r\n\r\n"
    "[File Version]\r\nFormat=v3\r\n\r\n[ToBeScheduled]\r\nGameList=\r\n\r\n"
    "[AcrossLeague]\r\nIs Across League=false\r\n\r\n[Scheduled Lock]\r\nLock=false\r\n\r\n";

QByteArray bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

class ExchangeTest : public testing::Test {
protected:
    void run(const QString& statement) { running.league.database().execute(statement); }
    QString path(const char* name) { return running.league.folder.filePath(QLatin1String(name)); }
    /// Shows the form; the user does `act` in it and closes it.
    void show(const char* form, std::function<void(QDialog&)> act) {
        drive = std::move(act);
        dialogs.expectForm(form, [this](QDialog& dialog) {
            drive(dialog);
            press(&dialog, "cmdClose");
        });
        // What the act brings up is expected behind the form.
    }
    void choose(QDialog& form, const QString& division) {
        auto* box = control<ChoiceBox>(&form, "cboDivision");
        ASSERT_GE(box->indexOf(division), 0);
        box->setCurrentIndex(box->indexOf(division));
    }

    RunningProgram running;
    ScriptedDialogs& dialogs = running.league.dialogs;
    std::function<void(QDialog&)> drive;
};

class ExportTest : public ExchangeTest {
protected:
    void SetUp() override {
        run("INSERT INTO tblDivision ([DivName], [DeletedFlag]) VALUES (\"Minors\", False)");
        run("INSERT INTO tblDivision ([DivName], [DeletedFlag]) VALUES (\"Gone\", True)");
        for (const char* team : {"Reds", "Blues"})
            run(QString("INSERT INTO tblTeam ([TeamName], [DivisionId], [DeletedFlag]) VALUES (\"%1\", 1, False)")
                    .arg(team));
        run("INSERT INTO tblTeam ([TeamName], [DivisionId], [DeletedFlag]) VALUES (\"Greens\", 1, True)");
        run("INSERT INTO tblTeam ([TeamName], [DivisionId], [DeletedFlag]) VALUES (\"Owls\", 2, False)");
        run("INSERT INTO tblVolunteer ([VolLastName], [VolFirstName], [VolAddress1], [VolHomePhone], [VolWorkPhone], "
            "[VolComments], [DeletedFlag]) VALUES (\"O'Hara\", \"Zoe\u0308\", \"1 Elm, \"\"B\"\"\", \"555-0101\", "
            "\"5550102\", \"\u2603 calls late\", False)");
        run("INSERT INTO tblTeamVolunteer ([VolId], [DivisionId], [TeamId], [VolPosName], [DeletedFlag]) VALUES "
            "(1, 1, 2, \"HeadCoach\", False)");
        run("INSERT INTO tblTeamVolunteer ([VolId], [DivisionId], [TeamId], [VolPosName], [DeletedFlag]) VALUES "
            "(1, 1, 1, \"HeadCoach\", True)");
        for (const char* field :
             {"\"Elm\", \"2 Elm\", \"5550100\", \"\", True",
              "\"Oak Park\", \"9 Oak\", \"5550199\", \"Left, left.\", False", "\"Fir\", \"\", \"\", \"\", True"})
            run("INSERT INTO tblField ([FieldName], [FieldStreet1], [FieldContactPhone], [FieldDirections], "
                "[DeletedFlag]) VALUES (" +
                QString(field) + ')');
        for (const char* field : {"3", "1", "2"})
            run(QString("INSERT INTO tblTeamField ([FieldId], [DivisionId]) VALUES (%1, 1)").arg(field));
    }
    const QByteArray minors =
        QByteArray(teamPart) + QByteArray(divisionPart).replace("%1", "Minors") + fieldPart + lastPart;
    const QByteArray gone = QByteArray(divisionPart).replace("%1", "Gone") + lastPart;
};

TEST_F(ExportTest, OneDivisionIsWrittenSectionBySection) {
    show("frmExport", [this](QDialog& form) {
        choose(form, "Minors");
        press(&form, "cmdExport");
    });
    dialogs.expectSaveFile("Save Division \"Minors\" As", path("minors.shd"));
    dialogs.expectForm("frmExportStatus", [](QDialog& status) {
        EXPECT_EQ(control<QLabel>(&status, "lblMessage")->text(),
                  "The export for Division \"Minors\"\nis complete.\nPress OK to continue.");
        press(&status, "cmdOK");
    });
    running.screens.show("frmExport");
    EXPECT_EQ(bytes(path("minors.shd")), minors);
    const FileRequest request = dialogs.shown()[1].request;
    EXPECT_EQ(request.defaultSuffix, ".shd");
    EXPECT_EQ(request.filters, "Diamond Scheduler File (*.shd)|*.shd|All Files(*.*)|*.*");
}

TEST_F(ExportTest, AllDivisionsAskForAFileEachAndStopAtTheFirstThatIsNotWritten) {
    show("frmExport", [this](QDialog& form) {
        press(&form, "cmdExport");
        choose(form, "All Divisions");
        press(&form, "cmdExport");
        press(&form, "cmdExport");
        press(&form, "cmdExport");
    });
    dialogs.expectWarning("Invalid Division Name", "Please select a valid Division\nName to Continue with the Export.");
    dialogs.expectSaveFile("Save Division \"Gone\" As", {});
    dialogs.expectSaveFile("Save Division \"Gone\" As", path("no such folder/gone.shd"));
    dialogs.expectError("Export to Diamond Scheduler");
    dialogs.expectSaveFile("Save Division \"Gone\" As", path("gone.shd"));
    dialogs.expectForm("frmExportStatus", [](QDialog& status) {
        control<QCheckBox>(&status, "chkDontShow")->click();
        press(&status, "cmdOK");
    });
    dialogs.expectSaveFile("Save Division \"Minors\" As", path("minors.shd"));
    running.screens.show("frmExport");
    EXPECT_EQ(bytes(path("gone.shd")), gone);
    EXPECT_EQ(bytes(path("minors.shd")), minors);
    EXPECT_EQ(running.settings.read("WindowSettings\\frmExport", "ShowExportMsgBox"), "False");
}

TEST_F(ExchangeTest, WithoutADivisionThereIsNothingToExport) {
    show("frmExport", [](QDialog& form) {
        EXPECT_FALSE(control(&form, "cmdExport")->isEnabled());
        EXPECT_EQ(control<QPlainTextEdit>(&form, "txtInstructions")->toPlainText().count("3.  "), 2);
    });
    running.screens.show("frmExport");
}

class ImportTest : public ExchangeTest {
protected:
    void importing(const QByteArray& content) {
        QFile file(path("games.kmo"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        show("frmImport", [](QDialog& form) { press(&form, "cmdImport"); });
        dialogs.expectOpenFile("Import Schedule File from Diamond Scheduler...", path("games.kmo"));
    }
    void expectReport(int count, const QString& division) {
        dialogs.expectInformation(
            "Import Finished", QString("There were %1 records for division \"%2\"\nimported into the Schedule table.")
                                   .arg(count)
                                   .arg(division));
        running.screens.show("frmImport");
        dialogs.verify();
    }
    void expectFound(const QString& division, BoxAnswer answer) {
        dialogs.expectQuestion(
            "Schedule Found...", answer,
            QString("Records for Division \"%1\" have been found in the schedule table.  If\nyou continue, the current "
                    "records for the division will be deleted\nfrom the Schedule table and replaced by the file you "
                    "requested to import.\n\n Do you want to contiue?")
                .arg(division));
    }
    void expectBadDate(BoxAnswer answer = BoxAnswer::Ok) {
        dialogs.expectBox(BoxKind::Warning, "Invalid Schedule Date", answer,
                          "An Invalid Schedule Date was found.\n\nAborting File Import.");
    }
    QString homeTeams() {
        const auto teams =
            running.league.database().readList("SELECT HomeTeam FROM tblSchedule ORDER BY ScheduleId", "HomeTeam");
        return QStringList(teams.begin(), teams.end()).join(' ');
    }
    static QByteArray game(const char* home, const char* date = "4/25/2026") {
        return QByteArray(date) + ",Saturday,9:05 AM,Minors,Hawks," + home + ",Oak Park";
    }
};

TEST_F(ImportTest, LinesBecomeGamesAndTheSameFileAgainReplacesThem) {
    importing(game("Owls") + "\r\n5-2-26,Sat,18:30,Majors,a,b,c, d");
    expectReport(2, "Minors");
    EXPECT_EQ(running.league.count("SELECT * FROM tblSchedule WHERE [Date] = #4/25/2026# AND [Day] = \"Saturday\" AND "
                                   "[Time] = #9:05# AND [division] = \"Minors\" AND [VisitorsTeam] = \"Hawks\" AND "
                                   "[HomeTeam] = \"Owls\" AND [Field] = \"Oak Park\" AND [DeletedFlag] = False"),
              1);
    EXPECT_EQ(running.league.count("SELECT * FROM tblSchedule WHERE [Date] = #5/2/2026# AND [Time] = #18:30# AND "
                                   "[division] = \"Majors\" AND [Field] = \"c, d\""),
              1);
    run("UPDATE tblSchedule SET [DeletedFlag] = True");
    importing(game("Larks") + '\n');
    expectFound("Minors", BoxAnswer::No);
    expectReport(0, "Minors");
    EXPECT_EQ(homeTeams(), "Owls b");
    importing(game("Larks") + '\n');
    expectFound("Minors", BoxAnswer::Yes);
    expectReport(1, "Minors");
    EXPECT_EQ(homeTeams(), "b Larks");
}

TEST_F(ImportTest, LongNamesAreCut) {
    const QByteArray division(31, 'd');
    const QByteArray field(31, 'f');
    const QByteArray team35(35, 'v');
    for (const QByteArray& visitors : QByteArrayList{team35, team35 + "v"}) {
        importing("4/25/2026,Sat,9:00," + division + ',' + visitors + ',' + QByteArray(36, 'h') + ',' + field);
        if (visitors != team35) expectFound(division.left(30), BoxAnswer::Yes);
        expectReport(1, division.left(30));
        const auto length = [&](const char* column) {
            return running.league.value("tblSchedule", QLatin1String(column)).size();
        };
        EXPECT_EQ(length("division"), 30);
        EXPECT_EQ(length("VisitorsTeam"), visitors == team35 ? 35 : 30);
        EXPECT_EQ(length("HomeTeam"), 35);
        EXPECT_EQ(length("Field"), 30);
    }
}

TEST_F(ImportTest, ABadLineStaysInHandUntilTheUserLeaves) {
    importing(game("Owls") + '\n' + game("Larks", "2/30/2026") + '\n' + game("Wrens"));
    expectBadDate();
    expectBadDate();
    expectBadDate(BoxAnswer::Cancel);
    expectReport(4, "Minors");
    EXPECT_EQ(homeTeams(), "Owls") << "what was good before it stays";
}

TEST_F(ImportTest, ABadLastLineIsToldOnceAndCounted) {
    const struct {
        QByteArray line;
        const char* what;
    } lines[] = {{"", "Date"},
                 {"4/25/2026,Saturday", "Time"},
                 {"4/25/2026,Saturday,25:99,Minors,a,b,c", "Time"},
                 {"4/25/2026,A day too long,9:00,Minors,a,b,c", "Day"},
                 {QByteArray(1 << 20, 'x'), "Date"},
                 {QByteArray(1 << 16, ','), "Date"}};
    for (const auto& [line, what] : lines) {
        run("DELETE FROM tblSchedule");
        importing(game("Owls") + '\n' + line + '\n');
        dialogs.expectWarning(QString("Invalid Schedule ") + what,
                              QString("An Invalid Schedule %1 was found.\n\nAborting File Import.").arg(what));
        expectReport(2, "Minors");
        EXPECT_EQ(homeTeams(), "Owls");
    }
}

TEST_F(ImportTest, FilesThatAreNoSchedule) {
    importing("");
    dialogs.expectWarning("No Data Available...", "The import file was empty.\nAborting import.");
    expectBadDate();
    expectReport(1, "");
    importing(
        QByteArray("\x7f"
                   "ELF\0\1\2",
                   7));
    dialogs.expectError("Import from Diamond Scheduler");
    running.screens.show("frmImport");
    show("frmImport", [](QDialog& form) { press(&form, "cmdImport"); });
    dialogs.expectOpenFile("Import Schedule File from Diamond Scheduler...", path("missing.kmo"));
    dialogs.expectError("Import from Diamond Scheduler");
    running.screens.show("frmImport");
    EXPECT_EQ(homeTeams(), "");
}

TEST_F(ImportTest, OtherEncodingsAreRead) {
    const QString text = QStringLiteral("4/25/2026,Sat,9:00,Minors,a,\u00c9toiles,c");
    QByteArray wide("\xff\xfe");
    for (const QChar letter : text) wide.append(char(letter.unicode() & 0xff)).append(char(letter.unicode() >> 8));
    for (const QByteArray& content : QByteArrayList{text.toUtf8(), "\xef\xbb\xbf" + text.toUtf8(), text.toLatin1(), wide}) {
        run("DELETE FROM tblSchedule");
        importing(content);
        expectReport(1, "Minors");
        EXPECT_EQ(homeTeams(), QStringLiteral("\u00c9toiles"));
    }
}

}  // namespace
