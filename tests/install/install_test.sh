#!/usr/bin/env bash
# Installs the build tree into a scratch prefix and uses only what was
# installed: the layout (the library directory as the build was configured:
# lib, or lib/x86_64-linux-gnu under /usr on Debian), every example, the
# shared libraries' SONAMEs, the package's version rule, the command, host
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
    --libdir) libdir="$2" ;;
    --examples-dir) examples_dir="$2" ;;
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
    "$libdir/cmake/lumeric/lumericConfig.cmake" "$libdir/cmake/lumeric/lumericConfigVersion.cmake" \
    "$libdir/pkgconfig/lumeric.pc" "$libdir/pkgconfig/lumeric-export.pc"; do
  [ -f "$prefix/$file" ] || fail "$file is not installed"
done
for example in "$examples_dir"/*.vlm "$examples_dir"/*.wrl; do
  file="share/doc/lumeric/examples/$(basename "$example")"
  [ -f "$prefix/$file" ] || fail "$file is not installed"
done
lib="$prefix/$libdir"
for name in liblumeric liblumeric_export; do
  library=$(cd "$lib" && ls $name.so.*.*.*)
  soname=$(objdump -p "$lib/$library" | awk '$1 == "SONAME" {print $2}')
  version=${library#$name.so.}
  [ "$soname" = "$name.so.${version%%.*}" ] || fail "SONAME is '$soname', not $name.so.${version%%.*}"
  [ -L "$lib/$soname" ] || fail "$libdir/$soname is not a link to $library"
  [ -L "$lib/$name.so" ] || fail "$libdir/$name.so (for linking) is missing"
done
# The package accepts what the SONAME loads: the same major version from the
# requested version on, and no other major version.
version_file="$lib/cmake/lumeric/lumericConfigVersion.cmake"
printf '%s\n' "include(\"$version_file\")" 'if(PACKAGE_VERSION_COMPATIBLE)' '  message("yes")' 'endif()' \
  >"$work/accepts.cmake"
accepts() {
  "$cmake" -DPACKAGE_FIND_VERSION="$1" -DPACKAGE_FIND_VERSION_MAJOR="${1%%.*}" -DPACKAGE_FIND_VERSION_MINOR="${1#*.}" \
    -DPACKAGE_FIND_VERSION_COUNT=2 -P "$work/accepts.cmake" 2>&1 | grep -qx yes
}
major=${version%%.*}
accepts "$major.0" || fail "the package refuses a request for $major.0"
if accepts "$((major + 1)).0"; then fail "the package accepts a request for $((major + 1)).0"; fi

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
  (cd "$work/run-$name" && LD_LIBRARY_PATH="$lib" "$program" "$scene") ||
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

export PKG_CONFIG_LIBDIR="$lib/pkgconfig"
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
