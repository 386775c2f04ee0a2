"""Reads the export of a pre-close as a spreadsheet does and compares every figure with the server's own.

compara_precorte.py EXPORT SERVER: the rows of SERVER end with a byte 30, their 46 fields with a byte 31. Tells what
differs, a line each, and at last how many fields were compared.
"""
import csv
import sys
from decimal import Decimal

TEXTOS = {28, 29, 30, 31, 32, 34, 40, 45}
ENTEROS = {2, 3, 5, 17, 24, 33, 36, 38, 41}
FECHAS = {4, 20, 23, 35, 37, 39}
IMPORTES = {6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 18, 19, 22, 25, 26, 27, 42, 43, 44}
SUMADOS = [8, 9, 10, 11, 12, 13, 14, 15, 16, 18, 19, 22, 25, 26, 27]


def fecha(valor):
    return '/'.join(reversed(valor.split('-')))


def igual(columna, visto, valor):
    if columna == 0:
        return visto == valor.rjust(15)
    if columna == 1:
        return visto == "'" + valor.rjust(18)
    if columna == 21:
        return visto == valor.rjust(3)
    if columna in TEXTOS:
        return visto == valor
    if columna in ENTEROS:
        return int(visto) == int(valor)
    if columna in FECHAS:
        return visto.strip() == fecha(valor)
    assert columna in IMPORTES
    return Decimal(visto) == Decimal(valor)


def main(exportado, servidor):
    comparados = 0
    with open(exportado, encoding='utf-8', newline='') as archivo:
        titulos, *filas, totales = csv.reader(archivo)
    with open(servidor, encoding='utf-8', newline='') as archivo:
        esperadas = [fila.split('\x1f')[:46] for fila in archivo.read().split('\x1e')[:-1]]
    if len(titulos) != 46 or len(set(titulos)) != 45 or [i for i, t in enumerate(titulos) if t == 'periodo'] != [3, 42]:
        print('los títulos:', titulos)
    if len(filas) != len(esperadas):
        print('son', len(filas), 'filas y no', len(esperadas))
    suyas = {fila[1]: fila for fila in esperadas}
    anterior = None
    for fila in filas:
        suya = suyas.pop(fila[1][1:].strip())
        orden = (int(suya[5]), suya[0])
        if len(fila) != 46 or anterior and orden[0] < anterior[0]:
            print('la fila', fila)
        anterior = orden
        for columna, (visto, valor) in enumerate(zip(fila, suya)):
            comparados += 1
            if not igual(columna, visto, valor):
                print(fila[1], titulos[columna], visto, valor)
    for columna, visto in enumerate(totales):
        comparados += 1
        suma = sum(Decimal(fila[columna]) for fila in esperadas) if columna in SUMADOS else None
        if (visto == '') != (suma is None) or suma is not None and Decimal(visto) != suma:
            print('el total de', titulos[columna], visto, suma)
    if len(totales) != 28:
        print('los totales:', totales)
    print(comparados)


main(*sys.argv[1:])
