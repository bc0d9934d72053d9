# To be sourced. Starts an invisible screen: an X server, a window manager and a temporary home.

# startVirtualDisplay SIZE: exports DISPLAY; stopVirtualDisplay ends what was started and removes its folder.
startVirtualDisplay() {
  virtual_dir=$(mktemp -d "${TMPDIR:-/tmp}/glimmerpane.XXXXXX")
  Xvfb -displayfd 3 -screen 0 "${1}x24" -nolisten tcp 3>"$virtual_dir/display" >/dev/null 2>&1 &
  virtual_pids=($!)
  local tries=0
  until [ -s "$virtual_dir/display" ]; do
    sleep 0.1
    tries=$((tries + 1))
    [ $tries -lt 100 ] || { echo "Xvfb did not start" >&2; stopVirtualDisplay; return 1; }
  done
  DISPLAY=":$(cat "$virtual_dir/display")"
  export DISPLAY
  openbox >/dev/null 2>&1 &
  virtual_pids+=($!)
  # Openbox names itself first, and loses windows that ask for the screen before it lists its clients: with cold font
  # caches that takes a second.
  until xprop -root _NET_CLIENT_LIST | grep -q 'window id'; do sleep 0.05; done
}

stopVirtualDisplay() {
  kill "${virtual_pids[@]}" 2>/dev/null || true
  wait "${virtual_pids[@]}" 2>/dev/null || true
  rm -rf "$virtual_dir"
}

# mainForm PID: prints the id of the program's main form once it is on the screen. The start-up picture and message
# boxes are smaller than the smallest main form.
readonly kMainFormWidth=780 kMainFormHeight=540
mainForm() {
  local id width height
  for id in $(xdotool search --onlyvisible --pid "$1" 2>/dev/null); do
    width=$(xwininfo -id "$id" 2>/dev/null | awk '/Width:/ { print $2 }')
    height=$(xwininfo -id "$id" 2>/dev/null | awk '/Height:/ { print $2 }')
    if [ "${width:-0}" -ge $kMainFormWidth ] && [ "${height:-0}" -ge $kMainFormHeight ]; then
      echo "$id"
      return 0
    fi
  done
  return 1
}
