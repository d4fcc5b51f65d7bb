# Sourced by ./run and ./test: installs from Debian's packages what is missing, and builds.

build_packages=(
  g++ cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-svg-dev libgl1-mesa-dev qt6-serialport-dev libsqlite3-dev
  libgtest-dev libgmock-dev libbenchmark-dev
)
run_packages=(
  fonts-liberation fonts-noto-cjk qt6-translations-l10n libqt6svg6 libqt6serialport6 qt6-qpa-plugins
)
test_packages=(clang-format clang-tidy poppler-utils)

say() { printf '%s\n' "$*" >&2; }

# need PACKAGE...: installs those that are not there. Without the rights to do so it names them and ends; on a system
# without Debian's packages it names them and goes on, since they may be there under other names.
need() {
  local missing=() package
  if ! command -v dpkg-query >/dev/null 2>&1 || ! command -v apt-get >/dev/null 2>&1; then
    say "Needed, by the names of Debian 12: $*"
    return 0
  fi
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if command -v sudo >/dev/null 2>&1; then
      as_root=(sudo)
    else
      say "These Debian packages are needed; please install them and start again:"
      say "  apt-get install --no-install-recommends ${missing[*]}"
      exit 1
    fi
  fi
  say "Installing: ${missing[*]}"
  local log
  log=$(mktemp)
  if ! { "${as_root[@]}" apt-get update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"; } \
    >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    say "The packages could not be installed; the whole log is $log"
    exit 1
  fi
  rm -f "$log"
}

# build PRESET [TARGET...]: configures once and builds; the second time it is quick.
build() {
  local preset=$1
  shift
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
  local targets=()
  [ $# -gt 0 ] && targets=(--target "$@")
  cmake --build "build/$preset" "${targets[@]}"
}

export LANG=C.UTF-8 LC_ALL=C.UTF-8
