#include "QORKITDateTime.h"
