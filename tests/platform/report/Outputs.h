#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>

#include "ListRows.h"
#include "platform/report/Report.h"

// What the tests of report files share: small reports, and other programs that read the files back.

inline QString outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(120000)) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

inline ListRows::Tables names(const QStringList& all) {
    ListRows::Tables tables{{"names", {{"Name", "Paid"}, {}}}};
    for (const QString& name : all) tables["names"].rows.push_back({name, "12.5"});
    return tables;
}

inline report::ReportDefinition nameList() {
    report::ReportDefinition definition;
    definition.title = "Active Player List";
    definition.organization = "Bracken Vale";
    definition.footer = "rptPlayerReport7";
    definition.query.text = "names";
    definition.columns = {{"Player Name", report::column("Name"), 30},
                          {"Paid", report::money("Paid"), 10, {}, report::Total::Sum}};
    definition.totals = report::fixed("Total");
    return definition;
}

/// No file may grow beyond so many bytes while this lives: what a full disk does to a writer.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit now{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &now);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_{};
};
