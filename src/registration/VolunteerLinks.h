#pragma once

#include <QWidget>

class ChoiceBox;
class EntryListModel;
class ListMover;
class QLabel;
class QListView;
class QPushButton;
class clsVolunteer;
struct Program;

/// The players a volunteer belongs to, the positions filled for the chosen one of them or for none, and the
/// certifications held. Every change is written at once.
class VolunteerLinks final : public QWidget {
    Q_OBJECT

public:
    /// Whose links they are is read from the record, which outlives this.
    VolunteerLinks(Program& program, clsVolunteer& volunteer);
    /// The record is another one: reads all lists, now or when they come into view. No player is chosen then.
    void refresh();

Q_SIGNALS:
    /// For the status line.
    void said(const QString& text);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* playersGroup();
    QWidget* moverGroup(const QString& title, ListMover* mover);
    void choosePlayer(const QString& entry);
    void addAssociation();
    void deleteAssociation();
    void movePosition(bool add, const QString& name);
    void moveCertification(bool add, const QString& name);
    void readPlayers();
    void readAssociations();
    void readPositions();
    void readCertifications();
    void showState();
    std::vector<QString> names(const QString& query, const char* column) const;

    Program& program_;
    clsVolunteer& volunteer_;
    QLabel* name_;
    ChoiceBox* player_ = nullptr;
    QPushButton* add_ = nullptr;
    QPushButton* delete_ = nullptr;
    QListView* associated_ = nullptr;
    EntryListModel* associatedNames_ = nullptr;
    ListMover* positions_;
    ListMover* certifications_;
    int playerId_ = 0;  ///< of the chosen player; 0: none
};
