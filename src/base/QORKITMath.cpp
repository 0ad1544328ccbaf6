#include "QORKITMath.h"
