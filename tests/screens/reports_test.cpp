#include "screens/ReportsScreen.h"

using Captions = std::vector<QString>;

TEST_F(ReportsTest, EveryCategoryOffersItsOptions) {
    const std::vector<std::pair<QString, Captions>> expected{
        {"Player",
         {"Single Player", "By Division", "By Division/Team", "Not Assigned to a Team", "Player Report by School",
          "Player Report by Age", "Player Age Exception Report"}},
        {"Volunteer", {"Single Volunteer", "By Division", "By Division/Team", "By Category"}},
        {"Sponsor", {"Single Sponsor", "By Division", "By Division/Team", "Unassigned Sponsors", "Sponsor List"}},
        {"Division",
         {"Division Info.", "Team Info by Division", "Division Standings", "Division Schedule",
          "Coach/Team Parent List"}},
        {"Team",
         {"Division/Team Info", "Team/Sponsor Info", "Team Rosters", "Team Schedule", "Fee Report by Division/Team",
          "Team Medical Report", "Team Roster Sorted by Age"}},
        {"Fields", {"Single Field Report", "All Fields Report", "Field/Team Assignment", "Field Schedule"}},
        {"Ability Ratings", {"Player Rating", "Volunteer Rating", "Player By Division", "Player By Division/Team"}},
        {"Equipment", {}},
        {"Game/Match Results", {}},
        {"Mailing Labels", {"All Players", "All Volunteers", "All Sponsors"}},
        {"Schedules", {"Master Schedule", "Division Schedule", "Team Schedule", "Field Schedule"}},
        {"Uniforms",
         {"Uniform Sizes -- All Teams", "Division/Team Uniform Summary", "Uniform Sizes by Team",
          "Pants/Shirts Size Summary", "Pants/Shirts Summary by Division"}},
        {"League Reports and Forms",
         {"Registration Count", "Fee Summary", "Active Player List", "Inactive Player List", "Blank Registration Form",
          "Player Registration Form(s)", "Registration Form (Active Players)"}},
        {"Refund/Balance Due",
         {"Refund Due Summary", "Refund Due by Division/Team", "Balance Due Summary", "Balance Due by Division/Team",
          "Team Fee Report", "Balance Due Invoice"}},
    };
    open();
    for (int category = 0; category < int(expected.size()); ++category) {
        const auto& [caption, options] = expected[size_t(category)];
        EXPECT_EQ(button("optReportSelection", category)->text(), caption);
        button("optReportSelection", category)->click();
        EXPECT_EQ(shown("optReportOptions", mostReportOptions), options) << caption.toStdString();
        EXPECT_EQ(control(screen, "lblNoReports")->isVisible(), options.empty());
        EXPECT_EQ(print()->isEnabled(), !options.empty()) << caption.toStdString();
        EXPECT_EQ(control(screen, "cmdMailingLabelOptions")->isVisible(), caption == "Mailing Labels");
    }
}

TEST_F(ReportsTest, PrintButtonSaysWhereTheReportGoes) {
    const std::vector<std::pair<QString, QString>> expected{
        {"Print", "&Print"},
        {"Print Preview", "&Preview"},
        {"File: RTF Format", "&RTF File"},
        {"File: PDF Format", "&PDF File"},
        {"File: HTML Format", "HT&ML File"},
        {"File: Excel Format", "&Excel File"},
    };
    open();
    EXPECT_EQ(print()->text(), "&Preview") << "nothing goes to paper unasked";
    for (int index = 0; index < int(expected.size()); ++index) {
        const auto& [caption, onButton] = expected[size_t(index)];
        EXPECT_EQ(button("optReportDestination", index)->text(), caption);
        chooseDestination(index);
        EXPECT_EQ(print()->text(), onButton);
    }
}

TEST_F(ReportsTest, RefusesWhatIsNotChosen) {
    const QString theReport = "\nthe report can be printed or displayed.";
    const QString before = "\nbefore the report can be printed or displayed.";
    const QString both = "You must select a Division and Team option" + before;
    const QString team = "You must select a Team option before" + theReport;
    const QString field = "You must select a Field from the list before" + theReport;
    const QString division = "You must select a Division from the list before" + theReport;
    const QString player = "You must select a player from the list before" + theReport;
    const struct {
        int category, option, list;  ///< whose text is empty
        QString message;
    } cases[] = {
        {0, 0, 1, player},
        {0, 2, 2, both},
        {0, 2, 3, both},
        {0, 4, 1, "You must select a School Name from the list before" + theReport},
        {0, 5, 2, division},
        {0, 6, 2, division},
        {1, 0, 1, "You must select a Volunteer from the list before" + theReport},
        {1, 3, 1, "You must select a Volunteer Category from the list" + before},
        {2, 0, 1, "You must select a Sponsor from the list before" + theReport},
        {3, 2, 2, "You must select a Division name or All Divisions" + theReport},
        {3, 3, 2, division},
        {5, 0, 1, "You must select a Field Name from the list before" + theReport},
        {5, 2, 2, "You must select a Division Name from the list before" + theReport},
        {5, 3, 1, field},
        {6, 0, 1, "You must select a Player from the list before" + theReport},
        {6, 1, 1, "You must select a Volunteer from the list before" + theReport},
        {6, 3, 3, team},
        {10, 3, 1, field},
        {12, 5, 1, player},
        {12, 6, 2, "You must select a Division option" + before},
        {13, 1, 3, team},
        {13, 3, 2, both},
        {13, 3, 3, team},
    };
    open();
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << "category " << each.category << ", option " << each.option);
        choose(each.category, each.option);
        for (int other = 1; other <= 3; ++other) {
            if (list(other)->isEnabled() && list(other)->count() > 0) list(other)->setCurrentIndex(0);
        }
        QTest::keyClick(list(each.list), Qt::Key_Delete);
        ASSERT_EQ(list(each.list)->currentText(), "");
        dialogs.expectError("Report Option Error...", each.message);
        press(screen, "cmdPrint");
        EXPECT_EQ(QApplication::focusWidget(), list(each.list));
        dialogs.verify();
    }
}

TEST_F(ReportsTest, ListsOfferTheLiveRowsOfWhatTheOptionIsAbout) {
    const datafile::Database database = running.league.database();
    for (const char* statement : {
             R"(DELETE FROM tblDivision)",
             R"(DELETE FROM tblVolunteerPositions)",
             R"(INSERT INTO tblDivision (DivisionId, DivName) VALUES (1, "Minors"))",
             R"(INSERT INTO tblDivision (DivisionId, DivName, DeletedFlag) VALUES (2, "Gone", True))",
             R"(INSERT INTO tblDivision (DivisionId, DivName) VALUES (3, "Majors"))",
             R"(INSERT INTO tblTeam (DivisionId, TeamName) VALUES (1, "Tigers"))",
             R"(INSERT INTO tblTeam (DivisionId, TeamName) VALUES (1, "Bears"))",
             R"(INSERT INTO tblTeam (DivisionId, TeamName) VALUES (3, "Lions"))",
             R"(INSERT INTO tblTeam (DivisionId, TeamName, DeletedFlag) VALUES (1, "Gone", True))",
             R"(INSERT INTO tblVolunteer (VolLastName, VolFirstName, VolHomePhone) VALUES ("Day", "Al", "555-0101"))",
             R"(INSERT INTO tblVolunteer (VolLastName, VolFirstName, DeletedFlag) VALUES ("Gone", "Al", True))",
             R"(INSERT INTO tblSponsor (SponsorName) VALUES ("Mill"))",
             R"(INSERT INTO tblField (FieldName) VALUES ("North"))",
             R"(INSERT INTO tblSchoolInfo (SchoolName) VALUES ("Elm"))",
             R"(INSERT INTO tblVolunteerPositions (VolPosName) VALUES ("Coach"))",
         })
        database.execute(statement);
    addPlayer("PlayerLastName, PlayerFirstName, PlayerIsUmpire", R"("Young", "Zoe", True)");
    addPlayer("PlayerLastName, PlayerFirstName", R"("Adams", "Cy")");
    addPlayer("PlayerLastName, PlayerFirstName, DeletedFlag, PlayerIsUmpire", R"("Gone", "Al", True, True)");
    const struct {
        int category, option, list;
        QString label;
        QStringList entries;
        QString shown{};
    } cases[] = {
        {0, 0, 1, "Player List", {"All Players", "Adams, Cy - 4/2/2012", "Young, Zoe - 4/2/2012"}},
        {0, 0, 2, "(Not Used for this Report)", {}},
        {0, 1, 2, "Division List", {"All Divisions", "Majors", "Minors"}, "All Divisions"},
        {0, 1, 3, "(Not Used for this Report)", {}},
        {0, 2, 3, "Team List", {"All Teams"}, "All Teams"},
        {0, 4, 1, "School Name List", {"All Schools", "Elm"}},
        {1, 0, 1, "Volunteer List", {"Day, Al - 555-0101"}},
        {1, 3, 1, "Volunteer Category List", {"All Volunteer Categories", "Coach"}},
        {2, 0, 1, "Sponsor List", {"Mill"}},
        {5, 0, 1, "Field List", {"All Fields", "North"}},
        {6, 0, 1, "Player List", {"Young, Zoe - 4/2/2012"}},
        {6, 1, 1, "Volunteer List", {"Day, Al - 555-0101"}},
        {9, 0, 2, "(Not Used for this Report)", {}},
    };
    open();
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << "category " << each.category << ", option " << each.option);
        choose(each.category, each.option);
        EXPECT_EQ(label(each.list), each.label);
        EXPECT_EQ(entries(each.list), each.entries);
        EXPECT_EQ(list(each.list)->currentText(), each.shown);
        EXPECT_EQ(list(each.list)->isEnabled(), !each.entries.empty());
    }
    choose(4, 2);
    pick(2, "Minors");
    EXPECT_EQ(entries(3), QStringList({"All Teams", "Bears", "Tigers"}));
    EXPECT_EQ(list(3)->currentText(), "All Teams");
    pick(3, "Tigers");
    choose(4, 5);
    EXPECT_EQ(list(3)->currentText(), "Tigers") << "what is chosen stays for the next report";
    pick(2, "Majors");
    EXPECT_EQ(entries(3), QStringList({"All Teams", "Lions"}));

    auto* narrow = control<QAbstractButton>(screen, "chkByDivision");
    EXPECT_FALSE(narrow->isEnabled());
    choose(9, 0);
    ASSERT_TRUE(narrow->isEnabled());
    narrow->click();
    EXPECT_EQ(label(2), "Select by Division");
    button("optReportOptions", 1)->click();
    EXPECT_EQ(label(1), "Select by Category");
    EXPECT_EQ(entries(1), QStringList({"All Volunteer Categories", "Coach"}));
}

TEST_F(ReportsTest, ListsFollowWhatOtherScreensChange) {
    open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen));
    addPlayer("PlayerLastName, PlayerFirstName", R"("Adams", "Cy")");
    addPlayer("PlayerLastName, PlayerFirstName", R"("Young", "Zoe")");
    QEvent comesBack(QEvent::ActivationChange);
    QApplication::sendEvent(screen, &comesBack);
    pick(1, "Young, Zoe - 4/2/2012");
    addPlayer("PlayerLastName, PlayerFirstName", R"("Baker", "Di")");
    QApplication::sendEvent(screen, &comesBack);
    EXPECT_EQ(list(1)->count(), 4);
    EXPECT_EQ(list(1)->currentText(), "Young, Zoe - 4/2/2012");
}

TEST_F(ReportsTest, UnknownCategoryIsTold) {
    open();
    dialogs.expectError("Report Selection Error",
                        "There has been an error in the selection.\nPlease notify Kestrelmoor Software of this error.");
    static_cast<frmReports*>(screen)->showCategory(14);
}

TEST_F(ReportsTest, BalanceDueInvoiceIsOfferedAndDoesNothing) {
    open();
    choose(13, 5);
    EXPECT_TRUE(print()->isEnabled());
    press(screen, "cmdPrint");
    dialogs.verify();
}

TEST_F(ReportsTest, NeedsNoMouse) {
    open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen));
    ASSERT_EQ(screen->focusWidget(), button("optReportSelection", 0));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(button("optReportOptions", 0)->text(), "Single Volunteer");
    QTest::keyClick(screen->focusWidget(), Qt::Key_Up);
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(screen->focusWidget(), button("optReportOptions", 0));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(button("optReportOptions", 1)->isChecked());
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(screen->focusWidget(), list(2)) << "not the first list, which this report does not use";
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(screen->focusWidget(), button("optReportDestination", 1)) << "not the first, but the selected one";
    QTest::keyClick(screen->focusWidget(), Qt::Key_Left);
    EXPECT_TRUE(button("optReportDestination", 0)->isChecked());
    dialogs.expectForm("printDialog", [](QDialog& shown) { shown.reject(); });
    QTest::keyClick(screen, Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialogs.shown().empty(); }))
        << "a button pressed by key acts a little later";
}
