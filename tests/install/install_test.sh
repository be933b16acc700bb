#!/usr/bin/env bash
# Installs the build tree into a scratch prefix and uses only what was
# installed: the layout, the shared libraries' SONAMEs, the command, host
# programs built through find_package(lumeric) and through pkg-config, for
# the translator and for the exporter, each of which runs its library.
set -euo pipefail

while [ $# -gt 0 ]; do
  case "$1" in
    --cmake) cmake="$2" ;;
    --pkg-config) pkg_config="$2" ;;
    --cxx) cxx="$2" ;;
    --flags) flags="$2" ;;
    --build-dir) build_dir="$2" ;;
    --work-dir) work="$2" ;;
    --tests-dir) tests_dir="$2" ;;
    *) echo "install test: unknown argument $1" >&2; exit 2 ;;
  esac
  shift 2
done

fail() {
  echo "install test: FAILED: $*" >&2
  exit 1
}

rm -rf "$work"
mkdir -p "$work"
work=$(cd "$work" && pwd)
build_dir=$(cd "$build_dir" && pwd)
tests_dir=$(cd "$tests_dir" && pwd)
prefix="$work/prefix"
"$cmake" --install "$build_dir" --prefix "$prefix" >"$work/install.log" ||
  fail "cmake --install (see $work/install.log)"

# The layout.
for file in bin/lumeric include/lumeric/lumeric.h include/lumeric/export.h share/man/man1/lumeric.1 \
    share/doc/lumeric/README.md share/doc/lumeric/language.md share/doc/lumeric/examples/expressions.vlm \
    lib/cmake/lumeric/lumericConfig.cmake lib/cmake/lumeric/lumericConfigVersion.cmake \
    lib/pkgconfig/lumeric.pc lib/pkgconfig/lumeric-export.pc; do
  [ -f "$prefix/$file" ] || fail "$file is not installed"
done
for name in liblumeric liblumeric_export; do
  library=$(cd "$prefix/lib" && ls $name.so.*.*.*)
  soname=$(objdump -p "$prefix/lib/$library" | awk '$1 == "SONAME" {print $2}')
  version=${library#$name.so.}
  [ "$soname" = "$name.so.${version%%.*}" ] || fail "SONAME is '$soname', not $name.so.${version%%.*}"
  [ -L "$prefix/lib/$soname" ] || fail "lib/$soname is not a link to $library"
  [ -L "$prefix/lib/$name.so" ] || fail "lib/$name.so (for linking) is missing"
done

# The installed command translates an installed example.
"$prefix/bin/lumeric" --version | grep -q '^lumeric [0-9]' || fail "lumeric --version"
"$prefix/bin/lumeric" -o "$work/example.wrl" "$prefix/share/doc/lumeric/examples/expressions.vlm" \
  2>"$work/example.err" || fail "the installed command failed on an installed example"
head -1 "$work/example.wrl" | grep -qx '#VRML V1.0 ascii' || fail "the example's output has no VRML header"

# Host programs see the prefix and nothing else of the build or the sources.
host_source="$tests_dir/host/HostProgram.cpp"
export_host_source="$tests_dir/export/formats/ExportHostProgram.cpp"
scene="$tests_dir/host/host_scene.vlm"
run_host() {
  local program="$1" name="$2"
  mkdir -p "$work/run-$name"
  (cd "$work/run-$name" && LD_LIBRARY_PATH="$prefix/lib" "$program" "$scene") ||
    fail "the host program built through $name"
}

"$cmake" -S "$tests_dir/install/consumer" -B "$work/by-package" \
  -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF \
  -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF -DCMAKE_FIND_USE_SYSTEM_PACKAGE_REGISTRY=OFF \
  -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_CXX_FLAGS="$flags" -DCMAKE_EXE_LINKER_FLAGS="$flags" \
  -DEXPECTED_PREFIX="$prefix" -DHOST_SOURCE="$host_source" -DEXPORT_HOST_SOURCE="$export_host_source" \
  >"$work/by-package.log" 2>&1 ||
  { cat "$work/by-package.log"; fail "configuring a project with find_package(lumeric)"; }
"$cmake" --build "$work/by-package" >>"$work/by-package.log" 2>&1 ||
  { cat "$work/by-package.log"; fail "building with find_package(lumeric)"; }
run_host "$work/by-package/host_by_package" find_package
run_host "$work/by-package/export_host_by_package" find_package-export

export PKG_CONFIG_LIBDIR="$prefix/lib/pkgconfig"
unset PKG_CONFIG_PATH
pc_flags=$("$pkg_config" --cflags --libs lumeric) || fail "pkg-config does not know lumeric"
case "$pc_flags" in *"$prefix"*) ;; *) fail "pkg-config flags '$pc_flags' do not point into the prefix" ;; esac
# shellcheck disable=SC2086 # the flags are words
"$cxx" -std=c++17 $flags -I"$tests_dir" "$host_source" -o "$work/host_by_pkg_config" $pc_flags ||
  fail "building with pkg-config"
run_host "$work/host_by_pkg_config" pkg-config

pc_flags=$("$pkg_config" --cflags --libs lumeric-export) || fail "pkg-config does not know lumeric-export"
case "$pc_flags" in *"$prefix"*) ;; *) fail "pkg-config flags '$pc_flags' do not point into the prefix" ;; esac
# shellcheck disable=SC2086 # the flags are words
"$cxx" -std=c++17 $flags -I"$tests_dir" "$export_host_source" -o "$work/export_host_by_pkg_config" $pc_flags ||
  fail "building the exporter's host with pkg-config"
run_host "$work/export_host_by_pkg_config" pkg-config-export

echo "install test: ok"
