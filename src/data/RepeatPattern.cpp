#include "data/RepeatPattern.h"
