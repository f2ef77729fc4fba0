#pragma once

#include "platform/datafile/Connection.h"

#include <functional>

struct sqlite3;

namespace datafile {

/// While it lasts, `tell` is called every few thousand steps of the engine's statements on a connection.
class Watch {
public:
    Watch(sqlite3* handle, std::function<void()> tell);
    Watch(const Connection& connection, std::function<void()> tell) : Watch(connection.handle_, std::move(tell)) {}
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

private:
    sqlite3* handle_;
    std::function<void()> tell_;
};

}  // namespace datafile
