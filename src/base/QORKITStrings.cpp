#include "QORKITStrings.h"
