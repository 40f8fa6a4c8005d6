// The shared log capture, linked into this suite so that the monitor's
// lines can be read back.
#include "log_capture.cpp"
