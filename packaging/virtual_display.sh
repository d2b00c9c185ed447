# A display for a machine that has none: it can be viewed through VNC, on this machine only and with
# a password made for the occasion. Sourced by ./run.

start_virtual_display() {
  local private display_number port
  private=$(mktemp -d)
  # shellcheck disable=SC2064 # the directory is known now
  trap "trap - EXIT; rm -rf '$private'; kill 0" EXIT
  trap 'exit 130' INT TERM

  mkfifo "$private/display"
  Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$private/display" 2>/dev/null &
  read -r display_number <"$private/display"
  export DISPLAY=":$display_number"
  openbox &>/dev/null &

  (umask 077 && head -c 6 /dev/urandom | base64 | tr '+/' 'ab' >"$private/password")
  x11vnc -display "$DISPLAY" -localhost -no6 -passwdfile "$private/password" -forever -shared \
    -quiet >"$private/port" 2>/dev/null &
  until port=$(sed -n 's/^PORT=//p' "$private/port") && [ -n "$port" ]; do sleep 0.1; done

  cat <<MESSAGE
There is no display here, so the game runs on a virtual one. To see it:
  VNC address:  localhost:$port    (from another machine: ssh -L $port:localhost:$port ...)
  password:     $(cat "$private/password")
Ctrl+C ends the game and its display.
MESSAGE
}
