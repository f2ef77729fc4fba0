#pragma once

#include <QDialog>

class CommentBox;
class Dialogs;
class clsDivision;

/// Adds the difficulty rating that was typed for a division to the list of ratings, with a comment.
class frmDifficultyRating final : public QDialog {
    Q_OBJECT

public:
    /// The division outlives the form and holds the rating once it is saved.
    frmDifficultyRating(clsDivision& division, const QString& rating, Dialogs& dialogs);

private:
    void save();

    clsDivision& division_;
    QString rating_;
    Dialogs& dialogs_;
    CommentBox* comments_;
};
