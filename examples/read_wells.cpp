// A host reading a block of the example configuration and splitting its
// values into fields, as the suite's readers do.
//   read_wells [path/to/wells.cfg]
#include <mapcfg/mapcfg.h>

#include <cstdio>

int main(int argc, char** argv) {
  const char* path = argc > 1 ? argv[1] : "examples/wells.cfg";
  mapcfg::CCfgScript script;
  script.Open(path, 0);
  const char* block = "Well Status";
  const int n = script.GetKeyCnt(block);  // -1 when the block is missing
  if (n < 0) {
    std::fprintf(stderr, "no block \"%s\" in %s\n", block, path);
    return 1;
  }
  for (int i = 0; i < n; ++i) {
    const mapcfg::String code = script.GetKeyName(block, i);
    const mapcfg::String value = script.GetKeyVal(block, i);
    int pos = -1;
    const mapcfg::String name = mapcfg::sGetSubStr(value, ';', pos + 1, &pos);
    const int symbol = mapcfg::sToInteger(mapcfg::sGetSubStr(value, ';', pos + 1, &pos));
    mapcfg::sGetSubStr(value, ';', pos + 1, &pos);  // the line style is not used here
    const uint32_t colour = mapcfg::sToDWord(mapcfg::sGetSubStr(value, ';', pos + 1, &pos));
    std::printf("%-4s %-16s symbol %d colour %06X\n", code.c_str(), name.c_str(), symbol,
                static_cast<unsigned>(colour));
  }
  return 0;
}
