# The guided journey: a private X server, database server and home, one session of the client, and the steps that the
# NN-tema.sh files are written with. To be sourced after ../lib.sh; `preset` is the build that is driven, `salida` the
# folder of the results.
#
# Nothing here sleeps for a fixed time: a step waits until its outcome shows, and fails after $paciencia seconds.
. "$raiz/scripts/visita/nombres.sh"

paciencia=20
principal='Tolvara V. 0.0.7a' # title of the main window
paso=preparación              # the step under way
pasos=0
fotos=0
visto=0      # bytes of the trace that belong to earlier steps
respuesta='' # the last thing looked at: what to tell when the step fails
procesos=()

# --- preparation ---------------------------------------------------------------------------------------------------

# Everything is made in a folder of its own and goes with it, however the journey ends.
prepara() {
  rm -rf "$salida"
  mkdir -p "$salida"
  temporal=$(mktemp -d "${TMPDIR:-/tmp}/tolvara-visita.XXXXXX")
  trap recoge EXIT
  trap 'exit 130' INT TERM HUP
  set -o errtrace
  trap 'no_paso "no se pudo: $BASH_COMMAND"' ERR
  chmod 711 "$temporal" # for the server's own user
  export HOME=$temporal/casa TOLVARA_DATOS=$temporal/servidor TOLVARA_PRUEBAS=1
  export LC_ALL=C.UTF-8 # in which xdotool reads what it types
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
  setxkbmap latam # a key for every letter that the steps type: one that has none is lost now and then
  espera 'no arranca el administrador de ventanas' xdotool get_num_desktops
}

# Opens the client, or the program $1 in its place. The trace goes on in the same file.
abre_cliente() {
  (abre_cliente_en "$preset" "$HOME" "${1:-}") >>"$salida/traza.txt" 2>>"$salida/errores.txt" </dev/null &
  cliente=$!
  procesos+=("$cliente")
}

# --- steps ---------------------------------------------------------------------------------------------------------

# Names the step that begins. What it traces is looked for from here on.
paso() {
  paso=$1
  respuesta=''
  ((++pasos))
  visto=$(stat -c %s "$salida/traza.txt" 2>/dev/null || echo 0)
  echo "- $paso"
}

no_paso() {
  echo "FALLA el paso «$paso»: $*" >&2
  [[ ! $respuesta ]] || echo "Lo último que se vio: $respuesta" >&2
  [[ ! ${cliente:-} ]] || kill -0 "$cliente" 2>/dev/null || echo 'El programa ya no está en marcha.' >&2
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

# Waits for the window with this title to have the keyboard; `ventana` is its number.
espera_ventana() { espera "no aparece la ventana «$1»" es_activa "$1"; }
es_activa() { ventana=$(xdotool getactivewindow) && [[ $(xdotool getwindowname "$ventana") == "$1" ]]; }

# Waits for another window than the last one waited for to have the keyboard.
espera_cierre() { espera 'no se cierra la ventana' cambia_activa; }
cambia_activa() {
  local activa
  activa=$(xdotool getactivewindow) && [[ $activa != "$ventana" ]]
}

# Waits for a dialog without a title.
espera_sin_titulo() { espera 'no aparece el diálogo' es_otra '' "$ventana"; }

# Waits for the client to end, which must be in good order.
espera_fin() {
  espera 'el programa no termina' termino
  wait "$cliente" || no_paso "el programa terminó con $?"
}

termino() { ! kill -0 "$cliente"; }

# Keys by their X names ("Tab", "alt+a"), one after the other.
teclea() { xdotool key --delay 30 "$@"; }
escribe() { xdotool type --delay 15 -- "$1"; }

# Clicks at a place that has a name, $2 times if that is told.
pulsa() { xdotool mousemove ${punto[$1]:?} click --repeat "${2:-1}" --delay 80 1; }
pulsa_en_ventana() { xdotool mousemove --window "$(xdotool getactivewindow)" ${punto_de_ventana[$1]:?} click 1; }

# Opens a pane of the menu bar. Always by way of the first one: the keys of the others can belong to a button as well. Keys
# that come before the pane is on the screen would be lost.
menu() {
  local antes
  xdotool mousemove 1000 750 # out of the way: an entry that comes up under the pointer becomes the current one
  antes=$(a_la_vista)
  teclea alt+i
  espera 'no se abre el menú' hay_mas_que "$antes"
  case $1 in
    Catalogos) teclea Right ;;
    Ayuda) teclea Left ;;
  esac
}

# How many windows are on the screen, the panes of a menu among them.
a_la_vista() { xdotool search --onlyvisible --maxdepth 1 '.*' 2>/dev/null | wc -l; }
hay_mas_que() { (($(a_la_vista) > $1)); }

# Chooses the option with this name.
elige() {
  local lugar cascada
  read -r lugar cascada <<<"${opcion_en[$1]:?}"
  menu Catalogos
  baja "$lugar"
  if [[ $cascada ]]; then
    teclea Right
    baja "$cascada"
  fi
  teclea Return
}
# Down to the place $1, counted from 1.
baja() { teclea $(printf 'Down %.0s' $(seq "$1")); }

# &Nuevo, and the values into the fields from the key on. The keyboard is then behind the last of them.
nuevo() {
  teclea alt+n
  llena "$@"
}

# The row with the key $1, by &Buscar; the keyboard is then on the field behind the key.
encuentra() {
  nuevo "$1"
  teclea alt+b
}

# The last row of the list, which is ahead of the key; the keyboard is then on the field behind the key.
elige_ultimo() {
  teclea alt+n
  vuelve clave
  teclea End
  salta lista clave
}

# Passes over the fields and buttons with these names, from the one with the keyboard on, or back over them.
salta() { teclea ${@/*/Tab}; }
vuelve() { teclea ${@/*/shift+Tab}; }

# The next page of the form, with the keyboard in its first field if it was in a page. Not by a click on its tab: what is
# clicked right after it could still be on the page before.
hojea() { teclea ctrl+Next; }

# The item at place $1 of the combo box with the keyboard, counted from 1; the keyboard is then behind it.
opta() {
  baja "$1"
  salta lista
}

# The day $1 in the calendar that has just opened, with the picture $2 if that is told, and &Aceptar.
pon_dia() {
  teclea $(printf 'Tab %.0s' $(seq "$1")) space
  [[ ! ${2:-} ]] || captura "$2"
  teclea alt+a
}

# Opens the calendar, by its button, which has the keyboard, and picks the second day of the month shown.
elige_dia() {
  teclea space
  espera_sin_titulo
  captura "$1"
  pon_dia 2
  espera_cierre
}

# &Aceptar or &Borrar (alt+r) by its key $1, and yes to the question with the title $2, which may be that of its
# form as well; its picture is $3.
confirma() {
  local forma
  forma=$(xdotool getactivewindow)
  teclea "$1"
  espera "no aparece la pregunta «$2»" es_otra "$2" "$forma"
  captura "$3"
  teclea alt+s
  espera_cierre
}
es_otra() { es_activa "$1" && [[ $ventana != "$2" ]]; }

# Answers the login, which the keyboard is at the password of, for the user $1 with the password $2; the picture of the welcome
# is $3.
entra() {
  espera_ventana 'Login'
  vuelve clave
  llena "$1"
  escribe "$2"
  teclea Return
  responde 'Validando usuario' Return "$3"
  exige_traza '38      ' # the catalogues are loaded: keys typed before would be lost
}

# Fills the fields from the one with the keyboard on.
llena() {
  local texto
  for texto; do
    teclea ctrl+a
    escribe "$texto"
    teclea Tab
  done
}

# Picks the fourth account of the chart, which takes postings, in $1 account fields from the one with the keyboard on.
pon_cuentas() {
  local i
  for ((i = 0; i < $1; i++)); do
    opta 4
    salta lupa
  done
}

# Answers a box: waits for the one with this title, takes its picture (the manual's too, if $4 names it), types a key and
# sees it go.
responde() {
  local titulo=$1 tecla=$2 nombre=$3 imagen=${4:-}
  espera_ventana "$titulo"
  captura "$nombre" $imagen
  teclea "$tecla"
  espera_cierre
}

# The picture of the screen once nothing moves, as NN-$1.png, and of the window in front, as the manual's picture $2.
captura() {
  local archivo anterior='' huella='' limite=$((SECONDS + paciencia))
  printf -v archivo '%s/%02d-%s.png' "$salida" "$((++fotos))" "$1"
  until [[ $huella && $huella == "$anterior" ]] || ((SECONDS > limite)); do
    anterior=$huella
    import -silent -window root "$archivo"
    huella=$(identify -format '%#' "$archivo")
  done
  [[ ! ${2:-} ]] || retrata "$archivo" "$2"
}

# The form that is up in the main window, or else the window with the keyboard in its frame, out of the picture $1 of the
# screen. See scripts/imagenes.
retrata() {
  local activa area hija lugar ventana
  mkdir -p "$salida/manual"
  activa=$(xdotool getactivewindow)
  lugar=$(de_marco -id "$(xwininfo -children -id "$activa" | awk '/Parent window id:/ { print $4 }')")
  if es_activa "$principal" || es_activa "$operaciones"; then
    # The area is the largest piece of the main window; of its own ones the one in front comes first.
    area=$(piezas "$activa" | sort -k2,2n | sed -n '$s/ .*//p')
    hija=$(piezas "$area" | awk '$2 > 20000 && !hay++ { print $1 }')
    [[ ! $hija ]] || lugar=$(de_marco -id "$hija")
  fi
  convert "$1" -crop "$lugar" +repage -colors 255 "PNG8:$salida/manual/$2.png"
}
de_marco() {
  xwininfo "$@" | awk '/Absolute upper-left X/ { x = $NF } /Absolute upper-left Y/ { y = $NF }
    $1 == "Width:" { ancho = $2 } $1 == "Height:" { alto = $2 } END { printf "%dx%d+%d+%d", ancho, alto, x, y }'
}
# The pieces of a window, the one in front first: number and size of each.
piezas() {
  xwininfo -children -id "$1" | awk '$1 ~ /^0x/ && match($0, /  [0-9]+x[0-9]+[+-]/) {
    split(substr($0, RSTART + 2), medida, "[x+-]")
    print $1, medida[1] * medida[2]
  }'
}

# --- outcomes ------------------------------------------------------------------------------------------------------

exige_traza() { espera "falta en la traza: $1" en_traza "$1"; }
en_traza() { tail -c "+$((visto + 1))" "$salida/traza.txt" | grep -F -- "$1"; }

# What the server answers to a statement, asked as its administrator, must be $2.
exige_dato() { espera "el servidor no responde «$2» a: $1" responde_servidor "$1" "$2"; }
responde_servidor() {
  respuesta=$(servidor psql "$sucursal" -XAtc "$1")
  [[ $respuesta == "$2" ]]
}

# The field with the keyboard on must show $1.
exige_campo() { espera "el campo no muestra «$1»" muestra "$1"; }
muestra() {
  teclea ctrl+a ctrl+c
  respuesta=$(timeout 2 xclip -selection clipboard -out -target UTF8_STRING)
  [[ $respuesta == "$1" ]]
}
