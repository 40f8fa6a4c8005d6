// How a test drives the test service, over the same bus as the library.
//
// The service owns the listener's name and answers its "MethodCall"s as
// scripted. On the control interface below:
//   Script(s member, s action, i status, i length, ay payload, u delayMs)
//     From now on, answer `member` ("*": every member without a script of its
//     own) after waiting `delayMs`, by `action`:
//       "reply"         (INT32 status, INT32 length, ARRAY of BYTE payload);
//                       a `length` of -1 sends the payload's true length
//       "no-arguments"  a method return without arguments
//       "error"         a D-Bus error reply
//       "exit"          end the service without answering
//       "echo"          as "reply", with the call's own payload
//     Calls that come in while an answer is delayed are answered meanwhile.
//   TakeCalls() -> a(siay)
//     The calls received since the last TakeCalls, in order: the member name
//     (first argument), the length argument and the exact payload bytes.
//   Emit(s member, s first, i length, ay payload, s destination)
//     Emits signal `member` ("Event", "Data", ...) on the signal path and
//     interface with these arguments; an empty destination broadcasts.
//   Pad(u size)
//     From now on, pads the payloads of replies and signals with spaces to at
//     least `size` bytes (their length arguments grow with them), so that a
//     test can reach the bus's message size limit without sending that much.
// Unscripted members are answered with the error below.
#ifndef ZUNDE_TEST_SERVICE_CONTROL_PROTOCOL_H
#define ZUNDE_TEST_SERVICE_CONTROL_PROTOCOL_H

namespace zunde::test_service {

inline constexpr const char* kControlInterface = "com.velmora.zunde.TestControl";
inline constexpr const char* kControlPath = "/com/velmora/zunde/TestControl";
inline constexpr const char* kScriptedError = "com.velmora.zunde.TestControl.Error.Scripted";
inline constexpr const char* kUnscriptedError = "com.velmora.zunde.TestControl.Error.Unscripted";
inline constexpr const char* kBadControlError = "com.velmora.zunde.TestControl.Error.BadArguments";
// Printed on standard output, one line, once the service owns its names.
inline constexpr const char* kReadyLine = "ready";

}  // namespace zunde::test_service

#endif
