# Sourced by ./run, ./test and tools/: installs the Debian packages that are missing. The README says what each is for.

packages_to_build="g++ cmake ninja-build ccache mold qt6-base-dev libxkbcommon-dev fonts-dejavu-core"
packages_to_test="libgtest-dev libgmock-dev"
packages_to_fuzz="clang libclang-rt-14-dev"

# need_packages PACKAGE...
need_packages() {
  local missing=()
  local package
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing; install them and try again: ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
