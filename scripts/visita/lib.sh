# The guided journey: a private X server, database server and home, one session of the client, and the steps that the
# NN-tema.sh files are written with. To be sourced after ../lib.sh.
#
# Nothing here sleeps for a fixed time: a step waits until its outcome shows, and fails after $paciencia seconds.
salida=$raiz/build/demo # a picture of each step, traza.txt (the client's standard output), errores.txt
paciencia=20            # seconds

paso=preparación # the step under way
visto=0          # bytes of the trace that earlier steps have accounted for
fotos=0
procesos=()

# --- preparation ---------------------------------------------------------------------------------------------------

# Everything is made in a folder of its own and goes with it, however the journey ends.
prepara() {
  rm -rf "$salida"
  mkdir -p "$salida"
  temporal=$(mktemp -d "${TMPDIR:-/tmp}/tolvara-visita.XXXXXX")
  trap recoge EXIT
  trap 'exit 130' INT TERM HUP
  chmod 711 "$temporal" # for the server's own user
  export HOME=$temporal/casa TOLVARA_DATOS=$temporal/servidor TOLVARA_PRUEBAS=1
  mkdir "$HOME"
  prepara_demostracion
  abre_pantalla
}

recoge() {
  local i
  for ((i = ${#procesos[@]} - 1; i >= 0; i--)); do
    kill "${procesos[i]}" 2>/dev/null || true
    wait "${procesos[i]}" 2>/dev/null || true
  done
  servidor stop >/dev/null 2>&1 || true
  rm -rf "$temporal"
}

# The X server picks its own number.
abre_pantalla() {
  local numero tubo
  unset WAYLAND_DISPLAY XAUTHORITY
  exec {tubo}< <(exec Xvfb -displayfd 1 -screen 0 1024x768x24 -nolisten tcp -noreset 2>"$temporal/xvfb.log")
  procesos+=($!)
  read -r -t "$paciencia" numero <&"$tubo" || falla "Xvfb no arranca: $(cat "$temporal/xvfb.log")"
  export DISPLAY=:$numero
  openbox >"$temporal/openbox.log" 2>&1 &
  procesos+=($!)
  espera 'no arranca el administrador de ventanas' xdotool getactivewindow
}

abre_cliente() {
  (abre_cliente_en "$HOME") >"$salida/traza.txt" 2>"$salida/errores.txt" </dev/null &
  cliente=$!
  procesos+=("$cliente")
}

# --- steps ---------------------------------------------------------------------------------------------------------

# Names the step that begins. What it traces is looked for from here on.
paso() {
  paso=$1
  visto=$(stat -c %s "$salida/traza.txt" 2>/dev/null || echo 0)
  echo "- $paso"
}

no_paso() {
  echo "FALLA el paso «$paso»: $*" >&2
  if import -silent -window root "$salida/falla.png" 2>/dev/null; then
    echo "Así quedó la pantalla: $salida/falla.png" >&2
  fi
  tail -n 5 "$salida/errores.txt" >&2 2>/dev/null || true
  exit 1
}

# Waits until a command succeeds; otherwise the step fails with the text $1.
espera() {
  local texto=$1 limite=$((SECONDS + paciencia))
  shift
  until "$@" >/dev/null 2>&1; do
    ((SECONDS < limite)) || no_paso "$texto"
    sleep 0.05
  done
}

titulo_activo() { [[ $(xdotool getwindowname "$(xdotool getactivewindow)") == "$1" ]]; }
hay_ventana() { xdotool search --onlyvisible --name "^$1\$"; }
no_hay_ventana() { ! hay_ventana "$1"; }

# Waits for the window with this title to have the keyboard.
espera_ventana() { espera "no aparece la ventana «$1»" titulo_activo "$1"; }
espera_cierre() { espera "no se cierra la ventana «$1»" no_hay_ventana "$1"; }

# Keys by their X names ("Tab", "alt+a"), one after the other.
teclea() { xdotool key --delay 30 "$@"; }
escribe() { xdotool type --delay 15 -- "$1"; }

# Fills the fields from the one with the keyboard on.
llena() {
  local texto
  for texto; do
    teclea ctrl+a
    escribe "$texto"
    teclea Tab
  done
}

# The boxes: waits for the one with this title, takes its picture, answers with a key and sees it go.
responde() {
  espera_ventana "$1"
  captura "$3"
  teclea "$2"
  espera_cierre "$1"
}

# The picture of the screen once nothing moves, as build/demo/NN-$1.png.
captura() {
  local archivo anterior='' huella='' limite=$((SECONDS + paciencia))
  archivo=$salida/$(printf %02d "$((++fotos))")-$1.png
  until [[ $huella && $huella == "$anterior" ]] || ((SECONDS > limite)); do
    anterior=$huella
    import -silent -window root "$archivo"
    huella=$(identify -format '%#' "$archivo")
  done
}

# --- outcomes ------------------------------------------------------------------------------------------------------

en_traza() { tail -c "+$((visto + 1))" "$salida/traza.txt" | grep -qF -- "$1"; }
exige_traza() { espera "falta en la traza: $1" en_traza "$1"; }

# What the server answers to a statement, asked as its administrator, must be $2.
responde_servidor() { [[ $(servidor psql "$sucursal" -XAtc "$1") == "$2" ]]; }
exige_dato() { espera "el servidor no responde «$2» a: $1" responde_servidor "$1" "$2"; }

# The field with the keyboard on must show $1.
muestra() {
  xdotool key --delay 30 ctrl+a ctrl+c
  [[ $(timeout 2 xclip -selection clipboard -out -target UTF8_STRING) == "$1" ]]
}
exige_campo() { espera "el campo no muestra «$1»" muestra "$1"; }
