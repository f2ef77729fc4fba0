#include "platform/datafile/Watch.h"

#include <sqlite3.h>
#include <utility>

namespace datafile {

Watch::Watch(sqlite3* handle, std::function<void()> tell) : handle_(handle), tell_(std::move(tell)) {
    constexpr int steps = 4000;  // some milliseconds' worth
    const auto called = [](void* self) {
        static_cast<Watch*>(self)->tell_();
        return 0;
    };
    sqlite3_progress_handler(handle_, steps, called, this);
}

Watch::~Watch() { sqlite3_progress_handler(handle_, 0, nullptr, nullptr); }

}  // namespace datafile
