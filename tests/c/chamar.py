"""The interface through ctypes: the answers are those of the command, and threads do not disturb each other.

chamar.py LIBRARY ORY
"""

import ctypes
import json
import random
import subprocess
import sys
import threading

biblioteca = ctypes.CDLL(sys.argv[1])
biblioteca.ory_chamar.argtypes = [ctypes.c_char_p]
biblioteca.ory_chamar.restype = ctypes.c_void_p
biblioteca.ory_liberar.argtypes = [ctypes.c_void_p]
biblioteca.ory_versao.restype = ctypes.c_char_p


def chamar(requisicao: bytes) -> bytes:
    endereco = biblioteca.ory_chamar(requisicao)
    try:
        return ctypes.string_at(endereco)
    finally:
        biblioteca.ory_liberar(endereco)


semente = random.randrange(2**32)
print("seed", semente)
sorteio = random.Random(semente)
TEXTOS = ["", "11222333000181", "529.982.247-25", "São João d'Oeste", "1234,56", "2026-02-30", "😀", "(1 + 2) * 3", "\u0001\n\"\\"]
MODELOS = [
    lambda: ("ValidouCnpjCpf", [sorteio.randint(-1, 12), sorteio.choice(TEXTOS)]),
    lambda: ("FormatarInscricaoFederal", [sorteio.randint(0, 5), sorteio.choice(TEXTOS)]),
    lambda: ("BuscarValorPorExtenso", [f"{sorteio.randint(-10**15, 10**15) / 100:.2f}"]),
    lambda: ("BuscarDataPorExtenso", [f"{sorteio.randint(1900, 2100)}-{sorteio.randint(1, 13):02}-{sorteio.randint(1, 31):02}"]),
    lambda: ("ValidouIE", [sorteio.choice(TEXTOS), sorteio.choice(["SP", "MG", "BA", "XX"])]),
    lambda: ("CalcularFormula", [sorteio.choice(TEXTOS), [], []]),
    lambda: ("ExtrairSomenteNumeros", [sorteio.choice(TEXTOS) * sorteio.randint(0, 50)]),
    lambda: ("FormatarCondicaoComOperadorSQL", [sorteio.choice(TEXTOS)]),
    lambda: (sorteio.choice(TEXTOS), sorteio.choice([1, None, {}, []])),
]
pedidos = []
for _ in range(3000):
    op, args = sorteio.choice(MODELOS)()
    pedido = json.dumps({"op": op, "args": args}, ensure_ascii=sorteio.random() < 0.5).encode()
    if sorteio.random() < 0.1:  # broken anywhere
        pedido = pedido[: sorteio.randrange(len(pedido))]
    pedidos.append(pedido)

lote = subprocess.run([sys.argv[2], "chamar", "--lote"], input=b"\n".join(pedidos) + b"\n", capture_output=True, check=True)
esperadas = lote.stdout.split(b"\n")[:-1]
assert len(esperadas) == len(pedidos), len(esperadas)
assert sum(resposta.startswith(b'{"resultado"') for resposta in esperadas) > len(pedidos) // 4

diferencas = []


def percorrer(inicio: int) -> None:
    for passo in range(len(pedidos)):
        i = (inicio + passo) % len(pedidos)
        resposta = chamar(pedidos[i])
        if resposta != esperadas[i]:
            diferencas.append((pedidos[i], resposta, esperadas[i]))


linhas = [threading.Thread(target=percorrer, args=(len(pedidos) * n // 4,)) for n in range(4)]
for linha in linhas:
    linha.start()
for linha in linhas:
    linha.join()
assert not diferencas, diferencas[:3]
assert biblioteca.ory_versao().count(b".") == 2
print("ok")
