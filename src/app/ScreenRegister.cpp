#include "app/ScreenRegister.h"

#include "league/frmFieldAvailability.h"
#include "equipment/frmEquipment.h"
#include "league/frmTeams.h"
#include "maintenance/frmBackup.h"
#include "maintenance/frmMerge.h"
#include "maintenance/frmNewSeason.h"
#include "ratings/frmRatings.h"
#include "registration/frmRegister.h"
#include "reports/frmReports.h"
#include "schedule/frmResults.h"
#include "schedule/frmExport.h"
#include "schedule/frmImport.h"
#include "setup/frmOptions.h"
#include "setup/frmSetup.h"
#include "shell/Program.h"
#include "shell/Screens.h"
#include "shell/frmAbout.h"
#include "shell/frmStartUp.h"

void registerScreens(Program& program) {
    Screens& screens = program.screens;
    screens.addScreen("frmRatings", [&program] { return std::make_unique<frmRatings>(program); });
    screens.addScreen("frmEquipment", [&program] { return std::make_unique<frmEquipment>(program); });
    screens.addScreen("frmRegister", [&program] { return std::make_unique<frmRegister>(program); });
    screens.addScreen("frmReports", [&program] { return std::make_unique<frmReports>(program); });
    screens.addScreen("frmResults", [&program] { return std::make_unique<frmResults>(program); });
    screens.addScreen("frmSetup", [&program] { return std::make_unique<frmSetup>(program); });
    screens.addScreen("frmTeams", [&program] { return std::make_unique<frmTeams>(program); });
    screens.addScreen(navigatorName, [&program] { return std::make_unique<frmStartUp>(program); });
    screens.addForm("frmAbout", [&program] { return std::make_unique<frmAbout>(program.dialogs()); });
    screens.addForm("frmBackup", [&program] { return std::make_unique<frmBackup>(program); });
    screens.addForm("frmMerge", [&program] { return std::make_unique<frmMerge>(program); });
    screens.addForm("frmNewSeason", [&program] { return std::make_unique<frmNewSeason>(program); });
    screens.addForm("frmExport", [&program] { return std::make_unique<frmExport>(program); });
    screens.addForm("frmImport", [&program] { return std::make_unique<frmImport>(program); });
    screens.addForm("frmFieldAvailability",
                    [&program] { return std::make_unique<frmFieldAvailability>(program.clock().today()); });
    screens.addForm("frmOptions", [&program] { return std::make_unique<frmOptions>(program); });
    screens.addForm("frmOptions.CustomFields",
                    [&program] { return std::make_unique<frmOptions>(program, frmOptions::Page::CustomFields); });
}
