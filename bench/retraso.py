#!/usr/bin/env python3
"""A long line to a server on this machine: retraso.py PUERTO MILISEGUNDOS listens on a free port of 127.0.0.1, writes
its number, and passes on what comes in either direction half that time later, in order and without a bound on how much
is under way. It ends with whoever reads its output, or by a signal."""
import asyncio
import sys


async def pasa(lector, escritor, demora):
    reloj = asyncio.get_running_loop()
    camino = asyncio.Queue()

    async def entrega():
        while True:
            momento, datos = await camino.get()
            await asyncio.sleep(momento - reloj.time())
            if not datos:
                escritor.close()
                return
            escritor.write(datos)

    tarea = asyncio.create_task(entrega())
    try:
        while datos := await lector.read(65536):
            camino.put_nowait((reloj.time() + demora, datos))
    except ConnectionError:
        pass
    camino.put_nowait((reloj.time() + demora, b""))
    await tarea


async def principal(puerto, demora):
    async def une(lector, escritor):
        lector_servidor, escritor_servidor = await asyncio.open_connection("127.0.0.1", puerto)
        await asyncio.gather(
            pasa(lector, escritor_servidor, demora), pasa(lector_servidor, escritor, demora), return_exceptions=True)

    servidor = await asyncio.start_server(une, "127.0.0.1", 0)
    print(servidor.sockets[0].getsockname()[1], flush=True)
    await servidor.serve_forever()


asyncio.run(principal(int(sys.argv[1]), float(sys.argv[2]) / 2000))
