#pragma once

struct Program;
struct ResultBox;

/// What the user may do with the data file as a whole, from the first question to the last box. Open screens are
/// offered their save first, and show afterwards what the file then holds.
class BackupFlow {
public:
    explicit BackupFlow(Program& program) : program_(program) {}

    void backUp();
    void restore();
    void merge();
    void compact();

private:
    /// The safety copy and the compaction before a backup; the user is told what of it failed.
    void prepareBackup();
    void tell(const ResultBox& box);

    Program& program_;
};
