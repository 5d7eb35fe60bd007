#include "Common/Language.h"

int16_t gLang = 0;
