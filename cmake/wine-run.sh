#!/bin/sh
# wine-run.sh PROGRAM.exe ARGS...: runs a program of the MinGW-w64 build under
# Wine, quietly, with the compiler's runtime DLLs (libstdc++, libgcc,
# winpthread) on Wine's search path. WINEPREFIX is Wine's own default unless
# set.
set -e
cxx=$(command -v x86_64-w64-mingw32-g++-posix || command -v x86_64-w64-mingw32-g++)
runtime=$(dirname "$("$cxx" -print-file-name=libstdc++-6.dll)")
pthread=$(dirname "$("$cxx" -print-file-name=libwinpthread-1.dll)")
wine=$(command -v wine64 || command -v wine || echo /usr/lib/wine/wine64)
WINEPATH="$runtime;$pthread${WINEPATH:+;$WINEPATH}"
WINEDEBUG=${WINEDEBUG:--all}
# No Mono or Gecko install prompt in a fresh prefix.
WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}
export WINEPATH WINEDEBUG WINEDLLOVERRIDES
exec "$wine" "$@"
