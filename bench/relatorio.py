#!/usr/bin/env python3
"""Makes the table of scripts/bench, the figures of docs/desempenho.md and its charts out of the measures.

  relatorio.py PASTA                       prints the table; writes PASTA/resultados.tsv
  relatorio.py PASTA --documento DOC --imagens PASTA_DE_IMAGENS
                                           also writes the figures into DOC, between its marks, and the charts

PASTA/medidas has one file for each program and round: what Google Benchmark writes as CSV, or lines of "name
nanoseconds". PASTA/crescimento.tsv is what bench_Crescimento prints. What was not measured is told as such.
"""

import argparse
import csv
import math
import os
import platform
import re
import statistics
import subprocess
import sys
from collections import defaultdict
from pathlib import Path

from alegacoes import FORA_DO_GRAFICO, OPERACOES, ORDENACOES


class Medidas:
    """The nanoseconds of each measure, by the round in which they were taken."""

    def __init__(self, pasta):
        self.rodadas = defaultdict(lambda: defaultdict(list))
        for arquivo in sorted(pasta.glob("*")):
            rodada = arquivo.stem.rsplit("-", 1)[-1]
            (self.ler_csv if arquivo.suffix == ".csv" else self.ler_linhas)(arquivo, rodada)

    def ler_csv(self, arquivo, rodada):
        linhas = arquivo.read_text().splitlines()
        inicio = next((i for i, linha in enumerate(linhas) if linha.startswith("name,")), None)
        if inicio is None:
            return
        for linha in csv.DictReader(linhas[inicio:]):
            nome = linha["name"].removesuffix("/real_time")
            if linha.get("items_per_second"):
                self.rodadas[nome][rodada].append(1e9 / float(linha["items_per_second"]))

    def ler_linhas(self, arquivo, rodada):
        for linha in arquivo.read_text().splitlines():
            nome, _, tempo = linha.rpartition(" ")
            self.rodadas[nome][rodada].append(float(tempo))

    def mediana(self, nome):
        tempos = [t for lista in self.rodadas.get(nome, {}).values() for t in lista]
        return statistics.median(tempos) if tempos else None

    def razoes(self, nome, outro):
        """outro / nome in each round, of the medians of that round: what the machine did to a round it did to both."""
        comuns = self.rodadas.get(nome, {}).keys() & self.rodadas.get(outro, {}).keys()
        return [statistics.median(self.rodadas[outro][r]) / statistics.median(self.rodadas[nome][r]) for r in comuns]


def escrever_tempo(ns):
    for limite, divisor, unidade in ((1e3, 1, "ns"), (1e6, 1e3, "µs"), (1e9, 1e6, "ms")):
        if ns < limite:
            return f"{ns / divisor:.3g} {unidade}" if ns / divisor < 999.5 else f"{ns / divisor:.0f} {unidade}"
    return f"{ns / 1e9:.3g} s"


def escrever_numero(valor):
    return f"{valor:.0f}" if valor >= 100 else f"{valor:.1f}" if valor >= 10 else f"{valor:.2f}"


class Linha:
    """One comparison: what the table, the document and the charts show of it."""

    def __init__(self, medidas, operacao, par):
        self.operacao, self.par = operacao, par
        self.nosso = medidas.mediana(operacao.medida)
        self.dele = medidas.mediana(par.medida) if par else None
        self.limite = medidas.mediana(operacao.limite) if operacao.limite else None
        razoes = medidas.razoes(operacao.medida, par.medida) if par else []
        self.vezes = statistics.median(razoes) if razoes else None
        self.faixa = (min(razoes), max(razoes)) if razoes else None

    @property
    def cumpriu(self):
        if not self.par or not self.par.meta or self.vezes is None:
            return None
        return self.vezes >= self.par.meta if self.par.tipo == "vezes" else 1 / self.vezes <= self.par.meta

    def razao(self):
        if not self.par:
            return ""
        if self.vezes is None:
            return "not measured"
        menor, maior = self.faixa
        if self.par.tipo == "vezes" or (not self.par.meta and self.vezes >= 1):
            return f"{escrever_numero(self.vezes)} times as fast ({escrever_numero(menor)} to {escrever_numero(maior)})"
        return (f"{escrever_numero(1 / self.vezes)} of its time "
                f"({escrever_numero(1 / maior)} to {escrever_numero(1 / menor)})")

    def meta(self):
        if not self.par or not self.par.meta:
            return ""
        meta = f"{self.par.meta:g}"
        texto = f"at least {meta} times" if self.par.tipo == "vezes" else f"at most {meta}"
        return texto + {None: "", True: ": met", False: ": NOT met"}[self.cumpriu]

    def celulas(self):
        def tempo(ns, falta="not measured"):
            return escrever_tempo(ns) if ns else falta
        limite = razao_do_limite = ""
        if self.operacao.limite and (not self.par or self.par.medida != self.operacao.limite):
            limite = f"{self.operacao.nome_do_limite}, {tempo(self.limite)}"
            if self.limite and self.nosso:
                razao_do_limite = escrever_numero(self.nosso / self.limite)
        par = f"{self.par.nome}, {tempo(self.dele)}" if self.par else ""
        return [self.operacao.nome, tempo(self.nosso), par, self.razao(), self.meta(), limite, razao_do_limite]


CABECALHO = ["operation", "ours", "peer", "ours beside the peer", "target", "limit", "ours / limit"]


def tabela_de_texto(linhas):
    todas = [CABECALHO] + linhas
    larguras = [max(len(linha[i]) for linha in todas) for i in range(len(CABECALHO))]
    return "\n".join("  ".join(c.ljust(n) for c, n in zip(linha, larguras)).rstrip() for linha in todas)


def tabela_de_documento(cabecalho, linhas):
    def linha(celulas):
        return "| " + " | ".join(celulas) + " |"
    return "\n".join([linha(cabecalho), linha(["---"] * len(cabecalho))] + [linha(l) for l in linhas])


class Crescimento:
    """The time of one operation at n, 10n and 100n."""

    def __init__(self, operacao, o_que, pontos):
        self.operacao, self.o_que, self.pontos = operacao, o_que, sorted(pontos)
        tempos = [max(t, 1) for _, t in self.pontos]
        self.passos = [b / a for a, b in zip(tempos, tempos[1:])]
        self.expoente = math.log10(tempos[-1] / tempos[0]) / (len(tempos) - 1)

    @property
    def linear(self):
        # The last step, where what every call costs has become small: 10 is linear, 12 is n log n at these sizes, 32 would
        # be the root of n too much. What the caches cost comes on top.
        return self.passos[-1] <= (20 if self.operacao in ORDENACOES else 16)


def ler_crescimento(arquivo):
    """Several runs of the program may follow each other: each point is the least of them. The memory that a process gets
    makes one size slow for all of its life, and another one in the next."""
    pontos = defaultdict(dict)
    if arquivo.exists():
        for linha in arquivo.read_text().splitlines():
            operacao, o_que, n, tempo = linha.split("\t")
            caso = pontos[operacao, o_que]
            caso[int(n)] = min(float(tempo), caso.get(int(n), math.inf))
    return [Crescimento(*chave, caso.items()) for chave, caso in pontos.items() if len(caso) > 1]


# Charts.

FONTE = 'font-family="DejaVu Sans, Verdana, sans-serif"'
TINTA, CINZA, GRADE = "#1f2933", "#616e7c", "#e4e7eb"
NOSSA, RUIM = "#0b7a75", "#c2410c"


def proteger(texto):
    return texto.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")


class Desenho:
    def __init__(self, largura, altura, titulo):
        self.largura, self.altura = largura, altura
        self.partes = [f'<rect width="{largura}" height="{altura}" fill="#ffffff"/>']
        self.titulo = titulo

    def texto(self, x, y, texto, ancora="start", tamanho=12, cor=TINTA, peso="normal"):
        self.partes.append(f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{ancora}" font-size="{tamanho}" fill="{cor}" '
                           f'font-weight="{peso}">{proteger(texto)}</text>')

    def risco(self, x1, y1, x2, y2, cor, largura=1.0, tracejado=""):
        traco = f' stroke-dasharray="{tracejado}"' if tracejado else ""
        self.partes.append(f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="{cor}" '
                           f'stroke-width="{largura}"{traco}/>')

    def barra(self, x, y, largura, altura, cor):
        self.partes.append(f'<rect x="{x:.1f}" y="{y:.1f}" width="{max(largura, 1):.1f}" height="{altura:.1f}" '
                           f'rx="2" fill="{cor}"/>')

    def caminho(self, pontos, cor, largura=1.0, opacidade=1.0):
        d = " ".join(f"{x:.1f},{y:.1f}" for x, y in pontos)
        self.partes.append(f'<polyline points="{d}" fill="none" stroke="{cor}" stroke-width="{largura}" '
                           f'stroke-opacity="{opacidade}"/>')

    def gravar(self, arquivo):
        corpo = "\n".join(self.partes)
        arquivo.write_text(f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.largura}" height="{self.altura}" '
                           f'viewBox="0 0 {self.largura} {self.altura}" {FONTE} role="img">\n'
                           f"<title>{proteger(self.titulo)}</title>\n{corpo}\n</svg>\n")


def escrever_vezes(valor):
    return f"{valor:g}" if valor >= 1 else f"1/{1 / valor:g}"


def desenhar_pares(linhas, arquivo):
    """How many times as fast as each peer, in a logarithmic scale, with a mark at the target."""
    linhas = [l for l in linhas if l.par and l.vezes and l.par.medida not in FORA_DO_GRAFICO]
    if not linhas:
        return
    esquerda, direita, topo, passo = 480, 950, 78, 22
    altura = topo + passo * len(linhas) + 40
    d = Desenho(1010, altura, "How many times as fast as each peer")
    d.texto(20, 28, "How many times as fast as each peer", tamanho=17, peso="bold")
    d.texto(20, 48, "Logarithmic. Line across a bar: the target. Left of 1 the peer is faster.", cor=CINZA)
    valores = [l.vezes for l in linhas] + [1]
    menor = math.floor(math.log10(min(valores)))
    maior = math.ceil(math.log10(max(valores)))

    def x(vezes):
        return esquerda + (math.log10(vezes) - menor) / (maior - menor) * (direita - esquerda)

    for expoente in range(menor, maior + 1):
        d.risco(x(10.0**expoente), topo - 8, x(10.0**expoente), altura - 32, GRADE)
        d.texto(x(10.0**expoente), altura - 14, escrever_vezes(10.0**expoente), "middle", 11, CINZA)
    anterior = None
    for i, linha in enumerate(linhas):
        y = topo + i * passo
        if linha.operacao.nome != anterior:
            d.texto(20, y + 12, linha.operacao.nome, tamanho=11)
            anterior = linha.operacao.nome
        d.texto(esquerda - 8, y + 12, linha.par.nome, "end", 11, CINZA)
        ponto = x(linha.vezes)
        cor = RUIM if linha.cumpriu is False else NOSSA if linha.cumpriu else "#8fb8b5"
        d.barra(min(x(1), ponto), y + 2, abs(ponto - x(1)), 13, cor)
        direita_do_texto = max(ponto, x(1))
        if linha.par.meta:
            meta = x(linha.par.meta if linha.par.tipo == "vezes" else 1 / linha.par.meta)
            d.risco(meta, y - 1, meta, y + 18, TINTA, 2)
            direita_do_texto = max(direita_do_texto, meta)
        d.texto(direita_do_texto + 5, y + 12, escrever_numero(linha.vezes), tamanho=11)
    d.risco(x(1), topo - 8, x(1), altura - 32, TINTA)
    d.gravar(arquivo)


def desenhar_crescimento(casos, arquivo):
    """Time by n, both logarithmic: one line for each operation; linear ones run along the dashes."""
    if not casos:
        return
    esquerda, direita, topo, base = 80, 720, 78, 560
    d = Desenho(980, 620, "Time of each operation at n, 10n and 100n")
    d.texto(20, 28, f"Time at n, 10n and 100n: {len(casos)} cases", tamanho=17, peso="bold")
    d.texto(20, 48, "Both axes logarithmic. Steeper than the dashes is more than linear.", cor=CINZA)
    ns = sorted({n for c in casos for n, _ in c.pontos})
    ts = [max(t, 1) for c in casos for _, t in c.pontos]
    n0, n1 = math.log10(ns[0]), math.log10(ns[-1])
    t0, t1 = math.floor(math.log10(min(ts))), math.ceil(math.log10(max(ts)))

    def x(n):
        return esquerda + (math.log10(n) - n0) / (n1 - n0) * (direita - esquerda)

    def y(t):
        return base - (math.log10(max(t, 1)) - t0) / (t1 - t0) * (base - topo)

    for expoente in range(t0, t1 + 1):
        d.risco(esquerda, y(10.0**expoente), direita, y(10.0**expoente), GRADE)
        d.texto(esquerda - 8, y(10.0**expoente) + 4, escrever_tempo(10.0**expoente), "end", 11, CINZA)
    for n in ns:
        d.risco(x(n), topo, x(n), base, GRADE)
        d.texto(x(n), base + 20, f"{n:,}", "middle", 11, CINZA)
    d.texto((esquerda + direita) / 2, base + 42, "n, characters", "middle", 12, CINZA)
    for caso in sorted(casos, key=lambda c: not c.linear, reverse=False):
        d.caminho([(x(n), y(t)) for n, t in caso.pontos], NOSSA if caso.linear else RUIM, 1.2, 0.45)
    for inicio in range(t0, t1):
        fim = min(inicio + (n1 - n0), t1)
        d.risco(x(10**n0), y(10.0**inicio), x(10 ** (n0 + fim - inicio)), y(10.0**fim), CINZA, 1, "5 4")
    d.texto(direita + 20, topo + 12, "last step: 10 times the work", tamanho=12, peso="bold")
    faixas = ((0, 9, "less than 9 times the time"), (9, 11, "9 to 11 times"), (11, 16, "to 16 (caches, n log n)"),
              (16, math.inf, "more"))
    for i, (de, ate, nome) in enumerate(faixas):
        quantos = sum(1 for c in casos if de <= c.passos[-1] < ate)
        d.texto(direita + 20, topo + 38 + i * 24, f"{quantos:4d}", tamanho=12, peso="bold")
        d.texto(direita + 60, topo + 38 + i * 24, nome, tamanho=12, cor=CINZA)
    d.gravar(arquivo)


# The document.

def ler_comando(*comando):
    try:
        return subprocess.run(comando, capture_output=True, text=True, check=True).stdout.strip()
    except (OSError, subprocess.CalledProcessError):
        return ""


def descrever_maquina():
    cpu = next((l.split(":")[1].strip() for l in Path("/proc/cpuinfo").read_text().splitlines()
                if l.startswith("model name")), "unknown processor")
    nucleo = ".".join(platform.release().split(".")[:2])
    sistema = platform.freedesktop_os_release().get("PRETTY_NAME", "") if hasattr(platform, "freedesktop_os_release") else ""
    memoria = int(re.search(r"MemTotal:\s+(\d+)", Path("/proc/meminfo").read_text())[1]) / 2**20
    node = ler_comando("node", "--version")
    carga = " ".join(f"{c:.2f}" for c in os.getloadavg())
    return tabela_de_documento(["machine", ""], [
        ["processor", f"{cpu}, {os.cpu_count()} logical"],
        ["memory", f"{memoria:.1f} GiB"],
        ["system", f"{sistema}, Linux {nucleo}, virtual" if "hypervisor" in Path("/proc/cpuinfo").read_text()
         else f"{sistema}, Linux {nucleo}"],
        ["compiler", ler_comando("c++", "--version").split("\n")[0] + ", -O2"],
        ["node", node or "none"],
        ["load averages at the end of the run", carga],
    ])


def tabela_de_crescimento(casos):
    linhas = []
    for caso in sorted(casos, key=lambda c: (-c.expoente, c.operacao)):
        linhas.append([f"`{caso.operacao}`", f"`` {caso.o_que} ``" if caso.o_que[0] in "[{" else caso.o_que]
                      + [escrever_tempo(t) for _, t in caso.pontos]
                      + [f"{p:.1f}" for p in caso.passos] + ["" if caso.linear else "more than linear"])
    cabecalho = ["operation", "what grows"] + [f"n = {n:,}" for n, _ in casos[0].pontos]
    return tabela_de_documento(cabecalho + ["first step", "second step", ""], linhas)


def preencher(documento, blocos):
    texto = documento.read_text()
    for nome, conteudo in blocos.items():
        padrao = re.compile(rf"(<!-- {nome}: written by bench/relatorio.py -->\n).*?(<!-- end -->)", re.S)
        if not padrao.search(texto):
            sys.exit(f"{documento} has no place for {nome}")
        texto = padrao.sub(lambda m: m[1] + "\n" + conteudo.rstrip() + "\n\n" + m[2], texto)
    documento.write_text(texto)


def resumir_metas(linhas):
    com_meta = [l for l in linhas if l.par and l.par.meta]
    def lista(status):
        return [l for l in com_meta if l.cumpriu is status]
    frases = [f"Of {len(com_meta)} targets {len(lista(True))} are met."]
    for linha in lista(False):
        frases.append(f"- NOT met: {linha.operacao.nome} beside {linha.par.nome}: {linha.razao()}; the target is "
                      f"{linha.meta().split(':')[0]}")
    for linha in lista(None):
        frases.append(f"- not measured in this run: {linha.operacao.nome} beside {linha.par.nome}")
    return frases[0] + "\n" + "".join(f"\n{frase}" for frase in frases[1:])


def main():
    leitor = argparse.ArgumentParser()
    leitor.add_argument("pasta", type=Path)
    leitor.add_argument("--documento", type=Path)
    leitor.add_argument("--imagens", type=Path)
    opcoes = leitor.parse_args()

    medidas = Medidas(opcoes.pasta / "medidas")
    linhas = [Linha(medidas, o, p) for o in OPERACOES for p in (o.pares or (None,))]
    casos = ler_crescimento(opcoes.pasta / "crescimento.tsv")
    celulas = [l.celulas() for l in linhas]
    (opcoes.pasta / "resultados.tsv").write_text("\n".join("\t".join(c) for c in [CABECALHO] + celulas) + "\n")

    print(tabela_de_texto(celulas))
    print()
    print(resumir_metas(linhas))
    maus = [c for c in casos if not c.linear]
    crescimento = (f"Growth: {len(casos)} cases, {len(casos) - len(maus)} linear (n log n for sorting)"
                   + (f"; more than that: {', '.join(sorted({c.operacao for c in maus}))}" if maus else "") + ".")
    print(crescimento)

    if opcoes.imagens:
        opcoes.imagens.mkdir(parents=True, exist_ok=True)
        desenhar_pares(linhas, opcoes.imagens / "desempenho-pares.svg")
        desenhar_crescimento(casos, opcoes.imagens / "desempenho-crescimento.svg")
    if opcoes.documento:
        preencher(opcoes.documento, {
            "machine": descrever_maquina(),
            "targets": resumir_metas(linhas),
            "figures": tabela_de_documento(CABECALHO, celulas),
            "growth": crescimento + ("\n\n" + tabela_de_crescimento(casos) if casos else ""),
        })


if __name__ == "__main__":
    main()
