# Doxygen's input filter: turns the plain comments of the headers into Doxygen's commands, so that the headers need none.
#   Example:  ...            an example, to the end of the comment
#   AName  text              an argument; in the comment of a class or a group, an entry of a list
#   Result: text             what is returned
#   Failure: text            when it fails
#   // Title.                alone above a blank line, inside a class: a section of its members
#   member;  // text         the member's comment
#   overloads, Get and Set   right below one another: the comment of the first one is everybody's
# All other text is taken as it stands: nothing in it is a command, a tag or an emphasis, save `code` and lists.
# Called by docs/Doxyfile from the project's folder.

FNR == 1 {
    comodo = FILENAME
    # Doxygen hands over full paths.
    if (index(comodo, ENVIRON["PWD"] "/") == 1) comodo = substr(comodo, length(ENVIRON["PWD"]) + 2)
    # Headers that lie in oryutils/ itself are the entry's.
    grupo = comodo ~ /^toolkits\/qt\// ? "qt" : comodo ~ /^oryutils\/[^\/]*$/ ? "entrada" : comodo
    sub(/^oryutils\//, "", grupo)
    sub(/\/.*/, "", grupo)
    c = comodo ~ /\.h$/
    print "/** @file " comodo " */"
}

function escapar(texto,    partes, quantas, i, saida) {
    quantas = split(texto, partes, "`")
    saida = ""
    for (i = 1; i <= quantas; ++i) {
        if (i % 2 == 1 || i == quantas) gsub(/[\\@&$#<>%"*~|]/, "\\\\&", partes[i])
        saida = saida (i > 1 ? "`" : "") partes[i]
    }
    return saida
}

# The comment gathered in bloco[1..linhas]; lista: arguments become a list instead of @param.
function escrever(lista,    i, texto, nome, codigo, recuo, margem, em_lista) {
    codigo = em_lista = 0
    for (i = 1; i <= linhas; ++i) {
        texto = bloco[i]
        match(texto, /^ */)
        recuo = RLENGTH
        if (codigo == 1 && recuo < margem && texto !~ /^$/ || codigo == 2 && texto ~ /^(Result:|A[A-Z][A-Za-z]*  +[^ ])/) {
            print "/// @endcode"
            codigo = 0
        }
        if (codigo) {
            if (margem < 0) margem = recuo
            print "/// " (recuo >= margem ? substr(texto, margem + 1) : texto)
        } else if (recuo >= 2 && texto !~ /^ *- / && i > 1 && (bloco[i - 1] == "" || bloco[i - 1] ~ /^[^ -].*:$/ && bloco[i - 1] !~ /^[A-Z][a-z]+:  /)) {
            # Lines set in below a blank line or a colon: code, or a table.
            print "///\n/// @code{" (texto ~ /;( |$)/ && texto !~ /^ *[^ ] / ? ".cpp" : ".unparsed") "}"
            margem = recuo
            print "/// " substr(texto, margem + 1)
            codigo = 1
        } else if (match(texto, /^Examples?: */)) {
            print "/// @par Example\n/// @code{.cpp}"
            margem = RLENGTH < length(texto) ? RLENGTH : -1
            if (margem > 0) print "/// " substr(texto, margem + 1)
            codigo = 2
        } else if (match(texto, /^Failure: */)) {
            print "/// @par Failure\n/// " escapar(substr(texto, RLENGTH + 1))
        } else if (match(texto, /^Result: */)) {
            print "/// @return " escapar(substr(texto, RLENGTH + 1))
        } else if (match(texto, c ? "^[a-z]+  +[^ ]" : "^A[A-Z][A-Za-z]*  +[^ ]")) {
            nome = texto
            sub(/ .*/, "", nome)
            sub(/^[A-Za-z]+  +/, "", texto)
            if (lista && !em_lista) print "///"
            print "/// " (lista ? "- `" nome "`: " : "@param " nome " ") escapar(texto)
            em_lista = 1
        } else if (texto ~ /^ *- /) {
            match(texto, /^ *- /)
            print "/// " substr(texto, 1, RLENGTH) escapar(substr(texto, RLENGTH + 1))
        } else {
            print "/// " escapar(texto)
        }
    }
    if (codigo) print "/// @endcode"
}

# What a declaration is about: the name before its first parenthesis, less Get and Set.
function assunto(linha) {
    if (linha !~ /\(/ || linha ~ /^ *(class|struct|enum|using|namespace|\}|#)/) return ""
    sub(/ *\(.*/, "", linha)
    sub(/.*[ *&]/, "", linha)
    sub(/^[GS]et/, "", linha)
    return linha
}

function fechar_secao() {
    if (secao) print "/// @}"
    secao = 0
}

function tratar(linha,    nome) {
    nome = assunto(linha)
    if (linhas) {
        escrever(linha ~ /^ *(class|struct|enum|using|namespace|template|inline constexpr)/ || linha ~ /^ *$/)
        anterior = nome
    } else if (anterior != "" && linha !~ /^ *$/ && linha !~ /^        /) {
        # Still the same subject: repeat its comment; lines inside a declaration or a body do not count.
        if (nome != "" && nome == anterior) {
            linhas = guardadas
            escrever(1)
        } else if (linha !~ /^ *[})]/) anterior = ""
    } else if (linha ~ /^ *$/) anterior = ""
    guardadas = linhas ? linhas : guardadas
    linhas = 0
    if (linha ~ /^(public|private|protected):|^};/) fechar_secao()
    # A member's comment on its own line.
    if (linha !~ /\/\/\// && match(linha, /[;,{}] +\/\/ /) && linha !~ /^} /) {
        linha = substr(linha, 1, RSTART) "  ///< " escapar(substr(linha, RSTART + RLENGTH))
    } else if (match(linha, /\/\/\/< */)) {
        linha = substr(linha, 1, RSTART - 1) "///< " escapar(substr(linha, RSTART + RLENGTH))
    }
    if (linha ~ /^} +\/\/ namespace (OryUtils|OryTypes)/) print "/// @}"
    print linha
    if (linha ~ /^namespace (OryUtils|OryTypes)(::[A-Za-z]+)? \{$/) print "/// @addtogroup " grupo "\n/// @{"
}

# The header for C: its comments are blocks, the first one is about the file.
c && /^\/\*/ { dentro = 1; linhas = 0; sub(/^\/\*/, " *") }
dentro {
    fim = /\*\//
    sub(/ *\*\/.*/, "")
    sub(/^ *\* ?/, "")
    if (!fim || $0 != "") bloco[++linhas] = $0
    if (fim) dentro = 0
    if (fim && !visto++) {
        print "/// @addtogroup c"
        escrever(1)
        print "/// @{"
        linhas = 0
    }
    next
}

/^ *\/\/\/ ?/ && !/^ *\/\/\/</ {
    sub(/^ *\/\/\/ ?/, "")
    if (!linhas) split("", bloco)
    bloco[++linhas] = $0
    next
}
# A section's title is known by the blank line below it.
/^    \/\/ [A-Z].*\.$/ { titulo = $0; next }
{
    if (titulo != "") {
        if ($0 ~ /^$/) {
            fechar_secao()
            sub(/^ *\/\/ /, "", titulo)
            sub(/\.$/, "", titulo)
            # More than a title: the rest says what holds for all of them.
            resto = match(titulo, /\. /) ? substr(titulo, RSTART + 2) "." : ""
            if (resto != "") titulo = substr(titulo, 1, RSTART - 1)
            print "/// @name " escapar(titulo) "\n/// " escapar(resto) "\n/// @{"
            secao = 1
        } else print titulo
        titulo = ""
    }
    tratar($0)
}

END { if (c) print "/// @}" }
