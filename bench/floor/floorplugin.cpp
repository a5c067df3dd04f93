#include "floorplugin.h"
