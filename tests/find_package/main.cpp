// A host of the installed library: calls it, and loads the installed English
// resource library from the folder given as its argument.
#include <mapcfg/mapcfg.h>

#include <cstdio>

int main(int argc, char** argv) {
  int pos = 0;
  const mapcfg::String field = mapcfg::sGetSubStr("  12 ; abc", ';', 0, &pos);
  if (field != "12" || pos != 5) return 1;
  if (argc > 1) {
    *mapcfg::sGetHomeDirPtr() = argv[1];
#if defined(_WIN32)
    mapcfg::sLoadResoueceDLL(argc > 2 ? argv[2] : "mapcfg_res_en.dll");
#else
    mapcfg::sLoadResoueceDLL(argc > 2 ? argv[2] : "mapcfg_res_en.so");
#endif
    if (!mapcfg::sGetResourceModule() || mapcfg::sGetInfoStr(838).empty()) {
      std::fprintf(stderr, "no resource library in %s\n", argv[1]);
      return 1;
    }
  }
  std::printf("mapcfg %s found\n", mapcfg::sLibraryVersion());
  return 0;
}
