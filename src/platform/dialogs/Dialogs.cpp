#include "platform/dialogs/Dialogs.h"
