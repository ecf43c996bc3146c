// Loads a host module (and with it the mapcfg library), fills the store,
// unloads it, again and again. Each load must start from an empty store
// (the library really went away, freeing everything it held: the sanitizer
// build reports any leak at exit), and after the last unload the library
// must no longer be mapped.
//   unload_loop HOST_MODULE LIBRARY SCRIPT
#include <dlfcn.h>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: unload_loop HOST_MODULE LIBRARY SCRIPT\n");
    return 2;
  }
  long first = 0;
  for (int round = 0; round < 25; ++round) {
    void* module = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
    if (!module) {
      std::fprintf(stderr, "round %d: %s\n", round, dlerror());
      return 1;
    }
    auto load = reinterpret_cast<long (*)(const char*)>(dlsym(module, "host_load"));
    const long fields = load ? load(argv[3]) : -1;
    if (fields <= 0 || (round > 0 && fields != first)) {
      std::fprintf(stderr, "round %d: %ld fields, the first round had %ld (state survived an unload?)\n", round,
                   fields, first);
      return 1;
    }
    first = fields;
    if (dlclose(module) != 0) {
      std::fprintf(stderr, "round %d: dlclose: %s\n", round, dlerror());
      return 1;
    }
  }
  if (void* still = dlopen(argv[2], RTLD_NOW | RTLD_NOLOAD)) {
    std::fprintf(stderr, "%s is still loaded after its last user was unloaded\n", argv[2]);
    dlclose(still);
    return 1;
  }
  std::printf("25 loads and unloads, %ld fields each time\n", first);
  return 0;
}
