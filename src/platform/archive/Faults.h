#pragma once

#include "platform/archive/Archive.h"
#include "platform/files/Files.h"

#include <zip.h>

namespace archive {

Fault faultOf(const zip_error_t& error);
Fault faultOfWriting(const files::Error& error);

}  // namespace archive
