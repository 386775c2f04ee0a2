#!/usr/bin/python3
"""Sessions that write without pause, as people do who save, and an account of what they were told.

  escritor.py escribe CUENTA DESTINO USUARIOS SESIONES CORRIDA [--cree]   until it gets signal 15
  escritor.py cuenta CUENTA                            what was told in the end, against "text|how often" lines of input
  escritor.py corte CUENTA DESDE [HASTA]               the longest time without an answer "saved" from a moment on

CUENTA is the file of the account, DESTINO where to connect (libpq's words: host=... port=... dbname=...), USUARIOS the file of
logins and passwords of the demonstration. A session saves formulas, each with a text of its own, through the branch's stored
function. When the answer is lost, it connects again, looks whether the row is there, and saves it again if not, as a
person would; so that a row which comes back later stands there twice. --cree does what a wrong program would: it takes a
lost answer for "saved".

Lines of the account: moment, what, text. What is "guardado" (answered, or found to be there), "duda" (the answer was lost), "rechazo"
(refused, or no connection; with the server's words).
"""
import os
import signal
import socket
import sys
import threading
import time

import psycopg2

PACIENCIA = 15  # seconds for an answer
# Only who can be written to knows: one that led until a moment ago may show what it is about to forget. And what a session
# that was given up still waits with for a standby cannot be seen yet.
SABE = """SELECT NOT pg_is_in_recovery() AND NOT EXISTS (SELECT FROM pg_stat_activity
                                                          WHERE usename = session_user AND wait_event = %s)"""
ESTA = "SELECT ARRAY[count(*)] FROM calculo WHERE descripcioncalculo = %s"
acaba = threading.Event()
candado = threading.Lock()


class Sesion(threading.Thread):
    def __init__(self, numero, destino, usuario, corrida, cuenta, cree):
        super().__init__()
        self.numero, self.destino, self.usuario, self.corrida = numero, destino, usuario, corrida
        self.cuenta, self.cree = cuenta, cree
        self.conexion = None
        self.queja = self.desde = None

    # A server that stands still answers nothing and does not hang up either.
    def cuelga_si_tarda(self):
        conexion, desde = self.conexion, self.desde
        if conexion and desde and time.monotonic() - desde > PACIENCIA:
            try:
                socket.socket(fileno=os.dup(conexion.fileno())).shutdown(socket.SHUT_RDWR)
            except (OSError, psycopg2.Error):
                pass

    def anota(self, que, texto):
        with candado:
            self.cuenta.write(f"{time.time():.3f} {que} {texto}\n")
            self.cuenta.flush()

    # A refusal is noted when it is another one than before.
    def rechaza(self, error):
        texto = " ".join(str(error).split())
        if texto != self.queja:
            self.anota("rechazo", texto)
            self.queja = texto
        self.suelta()
        acaba.wait(0.2)

    def suelta(self):
        if self.conexion:
            self.conexion.close()
        self.conexion = None

    def conecta(self):
        if self.conexion:
            return True
        login, clave, sucursal = self.usuario
        try:
            self.conexion = psycopg2.connect(f"{self.destino} user={login} password={clave} connect_timeout=3 "
                                             f"options='-c search_path={sucursal}'")
            self.conexion.autocommit = True
        except psycopg2.Error as error:
            self.rechaza(error)
        return self.conexion is not None

    # False when it is refused, None when nobody answers.
    def pregunta(self, sentencia, valor):
        self.desde = time.monotonic()
        try:
            with self.conexion.cursor() as cursor:
                cursor.execute(sentencia, (valor,))
                return cursor.fetchone()[0]
        except psycopg2.Error as error:
            self.rechaza(error)
            # An end that the server itself was told to make (class 57) may come behind the commit.
            return False if error.pgcode and error.pgcode[:2] != "57" else None
        finally:
            self.desde = None

    def guarda(self, texto):
        while not acaba.is_set():
            if not self.conecta():
                continue
            respuesta = self.pregunta("SELECT spicalculo(%s, 'a')", texto)
            if respuesta:
                break
            if respuesta is False:
                continue
            self.anota("duda", texto)
            if self.cree:
                break
            esta = None
            while esta is None and not acaba.is_set():
                if self.conecta() and self.pregunta(SABE, "SyncRep"):
                    esta = self.pregunta(ESTA, texto) or None
                if esta is None:
                    self.suelta()
                    acaba.wait(0.2)
            if esta and esta[0]:
                break
        else:
            return
        self.queja = None
        self.anota("guardado", texto)

    def run(self):
        n = 0
        while not acaba.is_set():
            n += 1
            self.guarda(f"c{self.corrida}s{self.numero}n{n}")
        self.suelta()


def escribe(archivo, destino, usuarios, sesiones, corrida, *opciones):
    signal.signal(signal.SIGTERM, lambda *_: acaba.set())
    with open(usuarios, encoding="utf-8") as lineas:
        logins = [l.split()[:3] for l in lineas if l.split()[3] in ("ADM", "GER")]
    with open(archivo, "a", encoding="utf-8") as cuenta:
        hilos = [Sesion(n, destino, logins[n % len(logins)], corrida, cuenta, "--cree" in opciones) for n in range(int(sesiones))]
        for hilo in hilos:
            hilo.start()
        while any(hilo.is_alive() for hilo in hilos):
            for hilo in hilos:
                hilo.cuelga_si_tarda()
            time.sleep(0.5)


def lee(archivo):
    with open(archivo, encoding="utf-8") as lineas:
        for linea in lineas:
            momento, que, texto = linea.rstrip("\n").split(" ", 2)
            yield float(momento), que, texto


def cuenta(archivo):
    hay = dict(linea.rstrip("\n").split("|") for linea in sys.stdin)
    guardados = [texto for _, que, texto in lee(archivo) if que == "guardado"]
    dudas = {texto for _, que, texto in lee(archivo) if que == "duda"}
    perdidos = sum(texto not in hay for texto in guardados)
    dobles = sum(int(veces) > 1 for veces in hay.values())
    print(f"{len(guardados)} guardados, {perdidos} perdidos, {dobles} dobles, {len(dudas)} dudas")


def corte(archivo, desde, hasta="inf"):
    momentos = [m for m, que, _ in lee(archivo) if que == "guardado" and float(desde) - 5 <= m <= float(hasta)]
    print(f"{max((b - a for a, b in zip(momentos, momentos[1:])), default=-1):.1f}")


if __name__ == "__main__":
    {"escribe": escribe, "cuenta": cuenta, "corte": corte}[sys.argv[1]](*sys.argv[2:])
