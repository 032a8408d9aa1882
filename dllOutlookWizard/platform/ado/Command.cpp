#include "Command.h"
