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
    Operacao("formula 2+3*4", "FormulaPequena_Biblioteca",
             (Par("FormulaPequena_muParser", "muParser", "vezes", 8),
              Par("FormulaPequena_expr-eval", "npm expr-eval", "vezes", 2)), "FormulaPequena_UmaLeitura", LEITURA),
    Operacao("formula of 5 operators", "FormulaMedia_Biblioteca",
             (Par("FormulaMedia_muParser", "muParser", "vezes", 8),
              Par("FormulaMedia_expr-eval", "npm expr-eval", "vezes", 2)), "FormulaMedia_UmaLeitura", LEITURA),
    Operacao("formula of 64 operators", "FormulaGrande_Biblioteca",
             (Par("FormulaGrande_muParser", "muParser", "vezes", 8),
              Par("FormulaGrande_expr-eval", "npm expr-eval", "vezes", 2)), "FormulaGrande_UmaLeitura", LEITURA),
    Operacao("sum of 1,000 operators", "Soma1000_Biblioteca", (),
             "Soma1000_from-chars-e-textos", "numbers read, partial sums rounded"),
) + tuple(
    Operacao(f"SQL filter, {n} conditions", f"Filtro{n}_Biblioteca",
             (Par(f"Filtro{n}_knex-toString", "npm knex, toString", "vezes", 4),
              Par(f"Filtro{n}_knex-toSQL", "npm knex, toSQL"),
              Par(f"Filtro{n}_fmt", "fmt", "parte", 1.0)), f"Texto{n}_Copia", "copy of the text")
    for n in (5, 50, 500)
) + (
    Operacao("the text of 500 conditions", "Texto500_Biblioteca",
             (Par("Texto500_fmt", "fmt", "parte", 1.0),
              Par("Texto50_Biblioteca", "the text of 50", "parte", 13)), "Texto500_Copia", "copy of the text"),
    Operacao("date written", "Datas_Biblioteca", (Par("Datas_Strftime", "strftime", "parte", 1.2),),
             "Datas_Copia", "copy of the text"),
    Operacao("CNPJ formatted", "FormatarCnpj_Biblioteca", (Par("FormatarCnpj_AMao", "written by hand for CNPJ"),)),
    Operacao("CPF formatted", "FormatarCpf_Biblioteca", (Par("FormatarCpf_AMao", "written by hand for CPF"),)),
    Operacao("100,000 versions sorted", "OrdenarVersoes_Biblioteca",
             (Par("OrdenarVersoes_StdSort", "std::sort of their numbers", "parte", 4),),
             "OrdenarVersoes_UmaLeitura", LEITURA),
    Operacao("log by append, save after each line", "LogLinhas_Biblioteca",
             (Par("LogLinhas_spdlog", "spdlog with flush", "parte", 1.2),), "LogLinhas_UmaEscrita", "one write of the line"),
    Operacao("log rewritten after each of 2,000 lines", "LogReescrito_Biblioteca",
             (Par("LogReescrito_spdlog", "spdlog with flush"),)),
    Operacao("log of 100,000 lines saved once", "LogInteiro_Biblioteca", (
        Par("LogInteiro_UmaEscrita", "one write of the text", "parte", 6),), "LogInteiro_UmaEscrita", "one write of the text"),
    Operacao("a command started", "Iniciar_Biblioteca", (Par("Iniciar_Popen", "popen", "parte", 0.65),),
             "Iniciar_Vfork", "bare vfork and exec"),
    Operacao("a command started, 1 GiB in use", "IniciarCom1GiB_Biblioteca", (
        Par("IniciarCom1GiB_Popen", "popen", "parte", 0.65),), "Iniciar_Vfork", "bare vfork and exec"),
    Operacao("100 MB of a command captured, one text", "Capturar_Biblioteca", (
        Par("Capturar_Read255Decodificado", "loop of read(255), decoded", "vezes", 1),
        Par("Capturar_Read255Alargado", "loop of read(255), widened"),
        Par("Capturar_Read255", "loop of read(255), forgotten")), "Capturar_Read64K", "loop of read(64 KiB)"),
    Operacao("100 MB of a command captured, lines", "CapturarEmLista_Biblioteca", (
        Par("CapturarEmLista_Read255", "loop of read(255), forgotten"),), "Capturar_Read64K", "loop of read(64 KiB)"),
    Operacao("1,000 processes listed", "ListarMil_Biblioteca", (Par("ListarMil_PsE", "ps -e"),),
             "ListarMil_LerArquivos", "their /proc files read"),
    Operacao("ory conferir --vereditos, 10 million CNPJs", "Vereditos_Biblioteca",
             (Par("Cnpjs_wc-l", "wc -l", "parte", 8),), "Cnpjs_wc-l", "wc -l"),
    Operacao("ory conferir, 10 million CNPJs", "Conferir_Biblioteca", (Par("Cnpjs_wc-l", "wc -l"),), "Cnpjs_wc-l", "wc -l"),
    Operacao("ory conferir --saida, 10 million CNPJs", "ConferirSaida_Biblioteca", (Par("Cnpjs_wc-l", "wc -l"),),
             "Cnpjs_wc-l", "wc -l"),
    Operacao("ory --versao, whole process", "Versao_Biblioteca",
             (Par("Partida_Vazio", "empty C++ program", "parte", 1.4),), "Partida_Vazio", "empty C++ program"),
    Operacao("ory chamar ValidouCnpjCpf, whole process", "Chamar_Biblioteca",
             (Par("Partida_Vazio", "empty C++ program", "parte", 1.4),
              Par("Partida_node", "node -e 0", "vezes", 0)), "Partida_Vazio", "empty C++ program"),
) + tuple(
    Operacao(f"{nome}, each of a million characters", f"{medida}/1000000", (), "Copiar/1000000", "copy of the text")
    for medida, nome in (("Limpar", "LimparTexto"), ("RemoverAcentos", "RemoverAcentos"), ("Dividir", "text split into a list"),
                         ("Substituir", "SubstituirMultiplosTextos"), ("SubstituirPorPassos", "SubstituirCaracteres"))
)

# Where the time must not be n times the work but n log n.
ORDENACOES = {"OrdenarListaDeVersoes"}

# What is no comparison of speed, or so far from all others that nothing else could be seen beside it.
FORA_DO_GRAFICO = {"Texto50_Biblioteca", "LogReescrito_spdlog"}
