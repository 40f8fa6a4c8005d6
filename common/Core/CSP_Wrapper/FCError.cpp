#include "FCError.h"

#include <cerrno>

void FCError::Set(int number) { errno = number; }

int FCError::Num() { return errno; }
