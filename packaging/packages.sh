# What the project needs from Debian, and how it is installed. Sourced by the scripts at the root.

build_packages=(
  g++ cmake ninja-build
  qt6-base-dev qt6-tools-dev qt6-tools-dev-tools libqt6sql6-sqlite
)
virtual_display_packages=(xvfb x11vnc openbox fonts-dejavu-core)
test_packages=(
  libgtest-dev libbenchmark-dev clang-format clang-tidy python3
  xvfb openbox xdotool wmctrl x11-utils imagemagick fonts-dejavu-core strace
  dbus at-spi2-core python3-pyatspi gir1.2-atspi-2.0 libxml2-utils
  cups cups-client poppler-utils
  desktop-file-utils appstream shared-mime-info libglib2.0-bin binutils
)

# install_missing PACKAGE...: installs what is not there yet and says so; silent when all is there.
install_missing() {
  local missing=() package
  for package in "$@"; do
    if ! dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed; then
      missing+=("$package")
    fi
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  echo "Installing: ${missing[*]}"
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
