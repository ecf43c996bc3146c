# AddressSanitizer and UndefinedBehaviorSanitizer for everything built here,
# when the compiler and linker take them; a warning and a plain build when
# they do not (MinGW, for one).
include(CheckCXXSourceCompiles)
set(CMAKE_REQUIRED_FLAGS "-fsanitize=address,undefined")
set(CMAKE_REQUIRED_LINK_OPTIONS "-fsanitize=address,undefined")
check_cxx_source_compiles("int main() { return 0; }" MAPCFG_HAVE_SANITIZERS)
unset(CMAKE_REQUIRED_FLAGS)
unset(CMAKE_REQUIRED_LINK_OPTIONS)
if(MAPCFG_HAVE_SANITIZERS)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=address,undefined)
else()
  message(WARNING "MAPCFG_SANITIZE: ${CMAKE_CXX_COMPILER_ID} does not take -fsanitize=address,undefined; building without")
endif()
