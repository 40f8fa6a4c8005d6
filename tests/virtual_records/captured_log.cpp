// The shared log capture, linked into this suite so that the library's log
// lines can be read back.
#include "log_capture.cpp"
