#include "platform/datafile/Error.h"
#include "store/BaseFile.h"

#include <QCoreApplication>
#include <cstdio>

/// kestrelmoor-base FILE: makes the empty data file of a new league.
int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: kestrelmoor-base FILE\n", stderr);
        return 2;
    }
    try {
        makeBaseFile(QString::fromLocal8Bit(argv[1]));
    } catch (const datafile::Error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
