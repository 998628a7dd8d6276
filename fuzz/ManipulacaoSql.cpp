// Any text as a statement: its parts are the statement, and a condition added stands between them.
#include "oryutils/sql/UnOryUtilsClasseManipulacaoSQL.hpp"

#include "Comum.hpp"

#include <algorithm>

using namespace OryUtils;
using S = TOryUtilsManipulacaoSQL;

void Fuzz::Provar(TEntrada AEntrada) {
    const auto tipo = static_cast<TFieldType>(AEntrada.Byte() % 40);
    const std::u16string texto = AEntrada.Resto();
    S comando;
    comando.SetScriptSQL(texto);
    const std::u16string& principal = comando.GetSQLPrincipal();
    const std::u16string& adicional = comando.GetSQLAdicional();
    Exigir(comando.GetScriptSQL() == texto && texto.starts_with(principal));
    if (!adicional.empty()) {
        // The character in front of the clause stands in both.
        Exigir(principal.back() == adicional.front() && principal + adicional.substr(1) == texto);
        const std::u16string clausula = adicional.substr(1, 8);
        Exigir(clausula == u"GROUP BY" || clausula == u"ORDER BY");
    }
    Exigir(S::FormatarCondicaoComOperadorSQL(texto).ends_with(texto));
    const std::u16string valor = S::FormatarParametroPesquisa(texto, tipo, fppPesquisaBancoDados);
    const auto apostrofos = std::ranges::count(valor, u'\'');
    // A text that goes between apostrophes cannot end there: each run of them is even.
    for (std::size_t i = 0; i < valor.size() && tipo == ftString;) {
        std::size_t fim = i;
        while (fim < valor.size() && valor[fim] == u'\'') ++fim;
        Exigir((fim - i) % 2 == 0);
        i = fim + 1;
    }
    if (tipo == ftString) Exigir(apostrofos == 2 * std::ranges::count(texto, u'\''));
}
