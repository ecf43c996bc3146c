// The archive reader on any bytes: loaded as a memory block and listed
// value by value, both to the end and stopping at the first damaged value.
#include <mapcfg/archive.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  mapcfg::CFFArchive ar;
  if (!ar.FromData(data, static_cast<uint32_t>(size))) return 0;
  if (ar.GetCount() != size) std::abort();
  const mapcfg::String all = ar.TestData();
  ar.Rewind();
  const mapcfg::ArchiveListing listing = mapcfg::sListArchive(ar);
  // What the careful listing shows whole, the plain listing shows the same.
  if (all.compare(0, listing.text.size(), listing.text) != 0) std::abort();
  if (!listing.complete && listing.stop_offset >= size) std::abort();
  // The block comes back unchanged.
  uint32_t n = 0;
  const std::unique_ptr<uint8_t[]> copy = ar.ToData(n);
  if (n != size || (n && std::memcmp(copy.get(), data, n) != 0)) std::abort();
  return 0;
}
