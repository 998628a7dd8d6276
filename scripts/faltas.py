"""The faults that scripts/mutantes seeds: which places of a source can be changed, and into what."""
import collections
import re

TROCAS = dict(par.split(" ") for par in (
    "== !=,!= ==,< <=,<= <,> >=,>= >,&& ||,|| &&,+ -,- +,* /,/ *,% *,& |,| &,^ &,<< >>,>> <<,+= -=,-= +=,*= +=,/= *=,"
    "|= &=,&= |=,true false,false true").split(","))
Falta = collections.namedtuple("Falta", "comodo arquivo linha coluna inicio fim novo tipo")

# What is not code: comments, texts, preprocessor lines. A character in quotes counts as a constant.
NAO_CODIGO = re.compile(r"""//[^\n]*|/\*.*?\*/|\b(?:u8|[uUL])?R"([^(\s]*)\(.*?\)\1"|(?:\b(?:u8|[uUL]))?"(?:\\.|[^"\\\n])*"
                        |^[ \t]*\#(?:[^\n]*\\\n)*[^\n]*|(?P<letra>(?<![0-9a-fA-F])'(?:\\[^\n][^'\n]*|[^'\\\n])')""",
                        re.S | re.M | re.X)
OPERADOR = re.compile(r"(?<= )(?:==|!=|<=|>=|&&|\|\||<<|>>|[-+*/|&]=|[-+*/%<>&|^])(?= )|\b(?:true|false)\b")
NUMERO = re.compile(r"(?<![\w.'])(0x[0-9A-Fa-f]+|\d[\d']*)((?:\.\d+)?[uUzZlL]*)(?![\w.'])")
NEGACAO = re.compile(r"(?<=[ (])!(?=[\w(:])")
DESVIO = re.compile(r"\b(?:if|while) \(")
CHAMADA = re.compile(r"(?<=[;{}\)]\n)[ \t]+((?!return\b|throw\b)[A-Za-z_][\w:.>-]*\([^\n;]*\);)(?=\n)")


def fecho(texto, abre):
    """Position of the bracket that closes the one at abre."""
    nivel = 0
    for i in range(abre, len(texto)):
        nivel += {"(": 1, ")": -1}.get(texto[i], 0)
        if nivel == 0:
            return i
    return len(texto) - 1


def faltas_de(comodo, arquivo, texto):
    """Every fault of the file, in the order of its places."""
    trocas = []  # start, end, new text, kind

    def apagar(achado):
        if achado["letra"] and len(achado[0]) == 3:
            trocas.append((achado.start(), achado.end(), f"'{chr(ord(achado[0][1]) + 1)}'", "constante"))
        return re.sub(r"[^\n]", "~", achado[0])

    codigo = NAO_CODIGO.sub(apagar, texto)
    for achado in list(re.finditer(r"\bstatic_assert\(", codigo)):
        fim = fecho(codigo, achado.end() - 1)
        codigo = codigo[: achado.start()] + re.sub(r"[^\n]", "~", codigo[achado.start():fim]) + codigo[fim:]
    for achado in OPERADOR.finditer(codigo):
        velho = achado[0]
        tipo = "constante" if velho.isalpha() else "comparação" if re.match("[=!<>]=|[<>]$", velho) else "operador"
        trocas.append((*achado.span(), TROCAS[velho], tipo))
    for achado in NUMERO.finditer(codigo):
        novo = str(int(achado[1].replace("'", ""), 0 if achado[1].startswith("0x") else 10) + 1) + achado[2]
        trocas.append((*achado.span(), novo, "constante"))
    for achado in NEGACAO.finditer(codigo):
        trocas.append((*achado.span(), "", "operador"))
    for achado in DESVIO.finditer(codigo):
        fim = fecho(codigo, achado.end() - 1)
        abre = max(achado.end(), codigo.rfind("; ", achado.end(), fim) + 2)  # Behind what the condition declares first.
        condicao = texto[abre:fim]
        declara = re.match(r"[\w:<>*&, ]+ [\w\[\], ]+ = ", condicao)
        trocas.append((abre, fim, f"{condicao}; false" if declara else f"false && ({condicao})", "nunca"))
        if achado[0].startswith("if"):
            trocas.append((abre, fim, f"{condicao}; true" if declara else f"true || ({condicao})", "sempre"))
    for achado in CHAMADA.finditer(codigo):
        trocas.append((*achado.span(1), ";", "chamada"))
    for inicio, fim, novo, tipo in sorted(trocas):
        linha = texto.count("\n", 0, inicio) + 1
        yield Falta(comodo, arquivo, linha, inicio - texto.rfind("\n", 0, inicio), inicio, fim, novo, tipo)
