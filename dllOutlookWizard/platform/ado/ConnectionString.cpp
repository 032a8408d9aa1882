#include "ConnectionString.h"
