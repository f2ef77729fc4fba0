#include "platform/settings/Settings.h"
