#pragma once

#include "maintenance/merge/Parents.h"
#include "platform/datafile/Database.h"
#include "store/StoreContext.h"

/// What the merge of all tables has in common.
struct MergeWork {
    StoreContext& context;
    datafile::Database local;
    datafile::Database source;
    Parents parents{};
};
