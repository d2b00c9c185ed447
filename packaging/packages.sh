# What the project needs from Debian, and how it is installed. Sourced by the scripts at the root.

build_packages=(
  g++ cmake ninja-build
  qt6-base-dev qt6-tools-dev qt6-tools-dev-tools libqt6sql6-sqlite
)
# In a Wayland session with Xwayland recommended, in one without it needed.
wayland_packages=(qt6-wayland)
virtual_display_packages=(xvfb x11vnc openbox fonts-dejavu-core)
test_packages=(
  libgtest-dev libbenchmark-dev clang-format clang-tidy python3
  xvfb openbox xdotool wmctrl x11-utils imagemagick fonts-dejavu-core strace
  dbus at-spi2-core python3-pyatspi gir1.2-atspi-2.0 libxml2-utils
  orca speech-dispatcher
  cups cups-client poppler-utils
  weston qt6-wayland
  desktop-file-utils appstream shared-mime-info libglib2.0-bin xdg-utils libfile-mimeinfo-perl
  binutils
)

is_installed() {
  dpkg-query -W -f='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# as_root COMMAND...: fails where nobody may become root.
as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    return 1
  fi
}

# install_missing PACKAGE...: installs what is not there yet and says so; silent when all is there.
# Where that fails, it says what root has to do, and fails. Elsewhere than on Debian it does nothing:
# there the build says what it misses.
install_missing() {
  command -v dpkg-query >/dev/null || return 0
  local missing=() package
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  local install=(apt-get install -y --no-install-recommends "${missing[@]}")
  echo "Installing: ${missing[*]}"
  as_root apt-get update -qq &&
    as_root env DEBIAN_FRONTEND=noninteractive "${install[@]}" -qq >/dev/null && return 0
  cat >&2 <<MESSAGE
These packages are missing, and could not be installed: ${missing[*]}
As root:
  ${install[*]}
MESSAGE
  return 1
}
