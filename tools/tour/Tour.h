#pragma once

#include "app/ProgramParts.h"
#include "tour/Guide.h"

/// From the first start to the printed list: the league is named and a division added, a family registered with a
/// parent who volunteers, a school added, the list of the active players previewed and saved.
class Tour {
public:
    /// The PDF is written to this path.
    Tour(ProgramParts& parts, Guide& guide, QString pdf);
    void take();

private:
    void start();
    void goToNavigator();
    void openRegistration();
    void renameOrganization();
    void addDivision();
    void startChild();
    void fillChild();
    void fillParents();
    void saveChild();
    void findChild();
    void addSibling();
    void showVolunteer();
    void addSchool();
    void previewList();
    void saveList();
    void exit();

    void search(const QString& list, const QString& text);

    ProgramParts& parts_;
    Guide& guide_;
    QString pdf_;
};
