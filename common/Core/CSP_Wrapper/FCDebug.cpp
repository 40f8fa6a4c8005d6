// placeholder until the runtime lands
#include "FCDebug.h"
