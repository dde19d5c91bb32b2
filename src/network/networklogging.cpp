#include "network/networklogging.h"

Q_LOGGING_CATEGORY(lcNetwork, "cirro.network", QtInfoMsg)
