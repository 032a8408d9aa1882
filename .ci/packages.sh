# Sourced by the scripts of this project: installs the Debian packages that are missing, and nothing else.

build_packages=(g++ cmake ninja-build ccache qt6-base-dev libsqlite3-dev libical-dev libcli11-dev nlohmann-json3-dev
  libgtest-dev pkg-config libcurl4-openssl-dev libssl-dev libexpat1-dev)
show_packages=(jq fonts-noto-core)
test_packages=(xvfb xdotool openbox imagemagick poppler-utils clang-format dpkg-dev file man-db
  openssl nghttp2-server python3-radicale xandikos)  # servers that tests start; no package starts one by itself
check_packages=(clang clang-tidy libclang-rt-dev llvm)

install_missing() {
  if ! command -v dpkg-query >/dev/null; then
    echo "No Debian packages here; trusting that these or their like are installed: $*" >&2
    return
  fi
  local missing=() package as_root=()
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  [ "$(id -u)" = 0 ] || as_root=(sudo)
  echo "Installing: ${missing[*]}" >&2
  "${as_root[@]}" apt-get update -q >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}" >&2
}
