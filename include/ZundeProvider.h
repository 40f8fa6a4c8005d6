// zunde-provider: the client library of the live-content service.
//
// Include this one header to reach every public type of the library.
#ifndef ZUNDE_PROVIDER_H
#define ZUNDE_PROVIDER_H

// Task runtime
#include "FCDebug.h"

// IPC transport
#include "FCMessageBuffer.h"

// Remote content records

// Set-top-box records

// Virtual channel records

// API entry and interfaces

#endif
