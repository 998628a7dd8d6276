"""What the benchmarks claim: a table apart from the tool that fills it in.

Of each operation: the name of its measures, the peers with the limit of the ratio (how many times as fast as the peer,
"vezes", or how much of the peer's time, "parte"), and the measure of what memory or the system takes alone.
"""

from typing import NamedTuple


class Par(NamedTuple):
    medida: str
    nome: str
    tipo: str = ""  # "vezes", "parte" or nothing to keep to
    meta: float = 0.0


class Operacao(NamedTuple):
    nome: str
    medida: str
    pares: tuple
    limite: str = ""
    nome_do_limite: str = ""


LEITURA = "plain pass over the bytes"

OPERACOES = (
    Operacao("CPF and CNPJ validated", "CpfCnpj_Biblioteca",
             (Par("CpfCnpj_brazilian-utils", "npm brazilian-utils", "vezes", 20),
              Par("CpfCnpj_LacoSimples", "plain C++ loop", "parte", 1)), "CpfCnpj_UmaLeitura", LEITURA),
    Operacao("state registration validated", "IE_Biblioteca",
             (Par("IE_brazilian-utils", "npm brazilian-utils", "vezes", 4),
              Par("IE_inscricaoestadual", "npm inscricaoestadual", "vezes", 8)), "IE_UmaLeitura", LEITURA),
    Operacao("amount in words", "Extenso_Biblioteca",
             (Par("Extenso_extenso", "npm extenso", "vezes", 15),
              Par("Extenso_Concatenacao", "plain C++ concatenation")), "Extenso_Copia", "copy of the text"),
) + tuple(
    Operacao(nome, f"{medida}_Biblioteca",
             (Par(f"{medida}_muParser", "muParser", "vezes", 8),
              Par(f"{medida}_expr-eval", "npm expr-eval", "vezes", 2)), f"{medida}_UmaLeitura", LEITURA)
    for medida, nome in (("FormulaPequena", "formula 2+3*4"), ("FormulaMedia", "formula of 5 operators"),
                         ("FormulaGrande", "formula of 64 operators"))
) + (
    Operacao("sum of 1,000 operators", "Soma1000_Biblioteca", (),
             "Soma1000_from-chars-e-textos", "numbers read, partial sums rounded"),
) + tuple(
    Operacao(f"SQL filter, {n} conditions", f"Filtro{n}_Biblioteca",
             (Par(f"Filtro{n}_knex-toString", "npm knex, toString", "vezes", 4),
              Par(f"Filtro{n}_fmt", "fmt", "parte", 1)), f"Texto{n}_Copia", "copy of the text")
    for n in (5, 50, 500)
) + (
    Operacao("date written", "Datas_Biblioteca", (Par("Datas_Strftime", "strftime", "parte", 1.2),),
             "Datas_Copia", "copy of the text"),
    Operacao("CNPJ formatted", "FormatarCnpj_Biblioteca", (Par("FormatarCnpj_AMao", "written by hand for CNPJ"),)),
    Operacao("CPF formatted", "FormatarCpf_Biblioteca", (Par("FormatarCpf_AMao", "written by hand for CPF"),)),
    Operacao("100,000 versions sorted", "OrdenarVersoes_Biblioteca",
             (Par("OrdenarVersoes_StdSort", "std::sort of their numbers", "parte", 4),),
             "OrdenarVersoes_UmaLeitura", LEITURA),
    Operacao("log by append, save after each line, Linux", "LogLinhas_Biblioteca",
             (Par("LogLinhas_spdlog", "spdlog with flush", "parte", 1.2),), "LogLinhas_UmaEscrita", "one write of the line"),
    Operacao("log by append, save after each line, Windows (Wine)", "LogLinhasWindows_Biblioteca",
             (Par("LogLinhasWindows_spdlog", "spdlog with flush", "parte", 1.2),),
             "LogLinhasWindows_UmaEscrita", "one write of the line"),
    Operacao("log rewritten after each of 2,000 lines", "LogReescrito_Biblioteca",
             (Par("LogReescrito_spdlog", "spdlog with flush"),)),
    Operacao("a command started", "Iniciar_Biblioteca", (Par("Iniciar_Popen", "popen", "parte", 0.65),),
             "Iniciar_Vfork", "bare vfork and exec"),
    Operacao("100 MB of a command captured, one text", "Capturar_Biblioteca",
             (Par("Capturar_Read255Decodificado", "loop of read(255), decoded", "parte", 1),),
             "Capturar_Read64K", "loop of read(64 KiB)"),
    Operacao("1,000 processes listed", "ListarMil_Biblioteca", (Par("ListarMil_PsE", "ps -e"),),
             "ListarMil_LerArquivos", "their /proc files read"),
    Operacao("ory conferir, 10 million CNPJs", "Conferir_Biblioteca",
             (Par("Cnpjs_duckdb", "npm DuckDB, read and counted", "parte", 1.5),), "Cnpjs_wc-l", "wc -l"),
    Operacao("ory conferir --saida, 10 million CNPJs", "ConferirSaida_Biblioteca",
             (Par("CnpjsSaida_duckdb", "npm DuckDB, copied to CSV with a column more", "parte", 1),), "Cnpjs_wc-l", "wc -l"),
    Operacao("ory chamar ValidouCnpjCpf, whole process", "Chamar_Biblioteca",
             (Par("Partida_Vazio", "empty C++ program", "parte", 1.6),
              Par("Partida_node", "node -e 0", "vezes", 0)), "Partida_Vazio", "empty C++ program"),
) + tuple(
    Operacao(f"{nome}, each of a million characters", f"{medida}/1000000", (), "Copiar/1000000", "copy of the text")
    for medida, nome in (("Limpar", "LimparTexto"), ("RemoverAcentos", "RemoverAcentos"), ("Dividir", "text split into a list"),
                         ("Substituir", "SubstituirMultiplosTextos"), ("SubstituirPorPassos", "SubstituirCaracteres"))
)

# Where the time must not be n times the work but n log n.
ORDENACOES = {"OrdenarListaDeVersoes"}

# What is no comparison of speed, or so far from all others that nothing else could be seen beside it.
FORA_DO_GRAFICO = {"LogReescrito_spdlog"}
