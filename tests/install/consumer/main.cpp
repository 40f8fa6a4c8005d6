// An application of ten lines: includes the umbrella header, links the
// installed library, and uses the runtime and the transport's buffer.
#include <ZundeProvider.h>

#include <cstdio>

int main() {
  FCMessageBuffer buffer;
  buffer.PushInt(42);
  std::printf("zunde-provider says %d\n", buffer.PopInt());
  return FCAPI::is_initailzed ? 1 : 0;
}
