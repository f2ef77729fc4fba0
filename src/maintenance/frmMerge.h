#pragma once

#include <QDialog>
#include <memory>
#include <optional>

class ButtonRow;
class MergeFile;
struct Program;

/// Brings the data of a second data file, or of a backup of one, into the local data file.
class frmMerge final : public QDialog {
    Q_OBJECT

public:
    explicit frmMerge(Program& program);

    void reject() override;

private:
    void merge();
    std::optional<QString> chooseFile();
    /// The file to be read for a chosen one: itself, or what was unpacked from a backup. Nothing when it cannot be.
    std::optional<QString> unpacked(const QString& chosen);
    bool isLocalFile(const QString& path) const;
    void tellLocalFile();
    /// A file that can be merged; otherwise a box has said why not.
    std::unique_ptr<MergeFile> open(const QString& path);
    void run(const MergeFile& file);

    Program& program_;
    ButtonRow* buttons_ = nullptr;
    bool running_ = false;
};
