#include "test_util.h"

#include <iconv.h>
#include <mapcfg/store.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace mapcfg_test {

TempDir::TempDir() {
  std::string tmpl = (std::filesystem::temp_directory_path() / "mapcfg-test-XXXXXX").string();
  if (!mkdtemp(tmpl.data())) std::abort();
  path_ = tmpl;
}

TempDir::~TempDir() {
  std::error_code ec;
  std::filesystem::remove_all(path_, ec);
}

std::string TempDir::Write(const std::string& name, const std::string& bytes) const {
  const std::string p = File(name);
  std::ofstream(p, std::ios::binary) << bytes;
  return p;
}

struct StoreGuard::Saved {
  char lang = *mapcfg::sGetCfgLang();
  std::string dirs[7] = {*mapcfg::sGetHomeDirPtr(),    *mapcfg::sGetConfigDirPtr(),  *mapcfg::sGetWorkProjDirPtr(),
                         *mapcfg::sGetOpenMapDirPtr(), *mapcfg::sGetSaveMapDirPtr(), *mapcfg::sGetOpenFileDirPtr(),
                         *mapcfg::sGetSaveFileDirPtr()};
  std::string templ = *mapcfg::sGetCfgTemplName();
  std::string plate = *mapcfg::sGetCfgPlatePath();
  mapcfg::ResStrFun texts = *mapcfg::sDllGetResStrPtr();
  mapcfg::StringArray lists[4] = {*mapcfg::sCfgGetLibNamesPtr(), *mapcfg::sCfgGetLibDllsPtr(),
                                  *mapcfg::sCfgGetMenuNamesPtr(), *mapcfg::sCfgGetMenuFunsPtr()};
};

StoreGuard::StoreGuard() : saved_(std::make_unique<Saved>()) {}

StoreGuard::~StoreGuard() {
  *mapcfg::sGetCfgLang() = saved_->lang;
  std::string* dirs[7] = {mapcfg::sGetHomeDirPtr(),    mapcfg::sGetConfigDirPtr(),  mapcfg::sGetWorkProjDirPtr(),
                          mapcfg::sGetOpenMapDirPtr(), mapcfg::sGetSaveMapDirPtr(), mapcfg::sGetOpenFileDirPtr(),
                          mapcfg::sGetSaveFileDirPtr()};
  for (int i = 0; i < 7; ++i) *dirs[i] = saved_->dirs[i];
  *mapcfg::sGetCfgTemplName() = saved_->templ;
  *mapcfg::sGetCfgPlatePath() = saved_->plate;
  *mapcfg::sDllGetResStrPtr() = saved_->texts;
  mapcfg::sSetMsgBoxHandler(nullptr);
  *mapcfg::sCfgGetLibNamesPtr() = saved_->lists[0];
  *mapcfg::sCfgGetLibDllsPtr() = saved_->lists[1];
  *mapcfg::sCfgGetMenuNamesPtr() = saved_->lists[2];
  *mapcfg::sCfgGetMenuFunsPtr() = saved_->lists[3];
  mapcfg::sCfgClearPlate();
}

std::string ReadAll(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

std::string Iconv(const char* to, const char* from, std::string text) {
  const iconv_t cd = iconv_open(to, from);
  if (cd == reinterpret_cast<iconv_t>(-1)) return "<no converter>";
  // Between GBK and UTF-8 a character grows by half at most.
  std::string out(text.size() * 2 + 4, '\0');
  char *in = text.data(), *at = out.data();
  size_t in_left = text.size(), out_left = out.size();
  const size_t converted = iconv(cd, &in, &in_left, &at, &out_left);
  iconv_close(cd);
  out.resize(out.size() - out_left);
  return converted == static_cast<size_t>(-1) ? std::string("<not ") + from + ">" : out;
}

}  // namespace mapcfg_test
