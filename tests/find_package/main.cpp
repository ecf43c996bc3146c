#include <mapcfg/mapcfg.h>

#include <cstdio>

int main() {
  int pos = 0;
  const mapcfg::String field = mapcfg::sGetSubStr("  12 ; abc", ';', 0, &pos);
  if (field != "12" || pos != 5) return 1;
  std::printf("mapcfg %s found\n", mapcfg::sLibraryVersion());
  return 0;
}
