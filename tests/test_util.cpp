#include "test_util.h"

#include <mapcfg/store.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "base/code_pages.h"

namespace mapcfg_test {

TempDir::TempDir() {
  namespace fs = std::filesystem;
  std::random_device seed;
  std::mt19937_64 random(seed());
  for (int attempt = 0; attempt < 100 && path_.empty(); ++attempt) {
    const fs::path dir = fs::temp_directory_path() / ("mapcfg-test-" + std::to_string(random() % 1000000000));
    std::error_code ec;
    if (fs::create_directory(dir, ec)) path_ = dir.generic_string();
  }
  if (path_.empty()) std::abort();
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
  const bool to_gbk = !std::strcmp(to, "GBK") && !std::strcmp(from, "UTF-8");
  const bool to_utf8 = !std::strcmp(to, "UTF-8") && !std::strcmp(from, "GBK");
  if (!to_gbk && !to_utf8) return "<no converter>";
  std::string out;
  const bool ok = to_gbk ? mapcfg::detail::Utf8ToGbk(text, &out) : mapcfg::detail::GbkToUtf8(text, &out);
  return ok ? out : std::string("<not ") + from + ">";
}

}  // namespace mapcfg_test
