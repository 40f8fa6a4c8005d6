#include "FCMessageBuffer.h"
