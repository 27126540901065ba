# The Debian 12 packages that the project needs, and their installation. To be sourced.

# Of the command-line program, and of both programs.
tool_packages=(g++ cmake ninja-build libexpected-dev libcli11-dev nlohmann-json3-dev libcadical-dev libssl-dev pkg-config
               libcairo2-dev libfreetype-dev libqrencode-dev fonts-lato)
build_packages=("${tool_packages[@]}" qt6-base-dev qt6-multimedia-dev)
check_packages=(libgmock-dev libbenchmark-dev clang-format-14 clang-tidy-14 xvfb openbox xdotool xclip x11-utils pulseaudio pulseaudio-utils
                desktop-file-utils appstream man-db jq
                qpdf poppler-utils zbar-tools parallel)

# To build packages of it, and to check them.
package_packages=(debhelper dpkg-dev lintian desktop-file-utils appstream)

missing_packages() {
  local installed
  installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true)
  local package
  for package in "$@"; do
    grep -qxF "$package installed" <<<"$installed" || echo "$package"
  done
}

# need_packages PACKAGE...: installs those that are missing, after saying which.
need_packages() {
  local missing
  mapfile -t missing < <(missing_packages "$@")
  ((${#missing[@]})) || return 0

  local as_root=()
  if ((EUID != 0)); then
    command -v sudo >/dev/null || {
      echo "Missing packages, and no sudo. As root: apt-get install ${missing[*]}" >&2
      return 1
    }
    as_root=(sudo)
  fi
  echo "Installing with apt-get${as_root:+ (through sudo)}: ${missing[*]}"
  # Another repository that is out of reach is no reason to stop: the installation tells.
  "${as_root[@]}" apt-get -q update || true
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -qq -y --no-install-recommends install "${missing[@]}"
}
