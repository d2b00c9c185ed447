# Where the game can show its window. Sourced by ./run, after packages.sh.

patience_seconds=20

# can_show_windows: whether there is a display here. What a Wayland session needs is installed.
can_show_windows() {
  if [ -n "${DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    return 0
  elif [ -z "${WAYLAND_DISPLAY:-}" ]; then
    return 1
  fi
  local socket=$WAYLAND_DISPLAY
  [[ $socket == /* ]] || socket=${XDG_RUNTIME_DIR:-}/$socket
  if [ ! -S "$socket" ]; then
    echo "WAYLAND_DISPLAY is set, but there is no Wayland session at $socket." >&2
    return 1
  fi
  install_missing "${wayland_packages[@]}"
}

# show_on_virtual_display COMMAND...: runs it on a display of its own. That can be viewed through VNC,
# on this machine only and with a password made for the occasion. What was started ends with us.
show_on_virtual_display() {
  private_directory=$(mktemp -d)
  shown_process=
  trap end_virtual_display EXIT
  trap 'exit 129' HUP
  trap 'exit 130' INT
  trap 'exit 143' TERM
  start_x_server
  start_viewing_server
  # Not in the foreground, where a signal to us would wait for its end.
  "$@" &
  shown_process=$!
  wait "$shown_process"
}

# The command ends first: it still has a display to end on. Only our own children get a signal.
end_virtual_display() {
  trap '' HUP INT TERM
  [ -z "$shown_process" ] || end_process "$shown_process"
  local process
  for process in $(jobs -pr); do
    end_process "$process"
  done
  rm -rf "$private_directory"
}

end_process() {
  kill "$1" 2>/dev/null || return 0
  local deadline=$((SECONDS + patience_seconds))
  while kill -0 "$1" 2>/dev/null; do
    [ $SECONDS -lt $deadline ] || kill -KILL "$1"
    sleep 0.05
  done
}

did_not_start() {
  echo "$1 did not start:" >&2
  tail -n 5 "$private_directory/log" >&2
  exit 1
}

start_x_server() {
  local number
  mkfifo "$private_directory/display"
  Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp \
    3>"$private_directory/display" 2>"$private_directory/log" &
  read -r -t $patience_seconds number <"$private_directory/display" || did_not_start Xvfb
  export DISPLAY=":$number"
  openbox &>/dev/null &
}

start_viewing_server() {
  local port='' deadline=$((SECONDS + patience_seconds))
  (umask 077 && head -c 6 /dev/urandom | base64 | tr '+/' 'ab' >"$private_directory/password")
  x11vnc -display "$DISPLAY" -localhost -no6 -passwdfile "$private_directory/password" \
    -forever -shared -quiet >"$private_directory/port" 2>"$private_directory/log" &
  until [ -n "$port" ]; do
    if [ $SECONDS -ge $deadline ] || ! kill -0 $! 2>/dev/null; then
      did_not_start x11vnc
    fi
    sleep 0.1
    port=$(sed -n 's/^PORT=//p' "$private_directory/port")
  done

  cat <<MESSAGE
There is no display here, so the game runs on a virtual one. To see it:
  VNC address:  localhost:$port    (from another machine: ssh -L $port:localhost:$port ...)
  password:     $(cat "$private_directory/password")
Ctrl+C ends the game and its display.
MESSAGE
}
