#include "oryutils/sql/UnOryUtilsClasseManipulacaoSQL.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/sql/interno/CondicaoSql.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

constexpr bool EhDecimal(TFieldType ATipo) {
    return ATipo == ftFloat || ATipo == ftCurrency || ATipo == ftBCD || ATipo == ftFMTBcd || ATipo == ftExtended;
}

bool ContemWhere(std::u16string_view ASQL) {
    constexpr std::u16string_view CWhere = u"WHERE";
    // No letter outside ASCII has one of these as its upper-case partner.
    const auto igual = [](char16_t A, char16_t B) { return A == B || A == B + (u'a' - u'A'); };
    return std::search(ASQL.begin(), ASQL.end(), CWhere.begin(), CWhere.end(), igual) != ASQL.end();
}

std::u16string FormatarDecimal(std::u16string_view AValor, TTipoFormatoParametroPesquisa ATipoFormato) {
    std::u16string resultado(AValor);
    if (resultado.find(u',') != std::u16string::npos) std::erase(resultado, u'.');
    const char16_t separador = ATipoFormato == fppPesquisaEmCache ? u',' : u'.';
    for (char16_t& c : resultado)
        if (c == u'.' || c == u',') c = separador;
    return resultado;
}

}  // namespace

void TOryUtilsManipulacaoSQL::SetScriptSQL(std::u16string_view AValor) {
    FScriptSQL = AValor;
    SepararBlocosSQL();
}

void TOryUtilsManipulacaoSQL::Limpar() { SetScriptSQL({}); }

void TOryUtilsManipulacaoSQL::SepararBlocosSQL() {
    FSQLPrincipal.clear();
    FSQLAdicional.clear();
    if (Aparar(FScriptSQL).empty()) return;
    FSQLPrincipal = FScriptSQL;
    for (const std::u16string_view clausula : {u"GROUP BY", u"ORDER BY"}) {
        const std::size_t posicao = FScriptSQL.find(clausula);
        if (posicao == std::u16string::npos || posicao == 0) continue;
        FSQLPrincipal.resize(posicao);
        FSQLAdicional = FScriptSQL.substr(posicao - 1);
        return;
    }
}

std::u16string TOryUtilsManipulacaoSQL::BuscarOperadorSQL(std::u16string_view ASQL) {
    return ContemWhere(ASQL) ? u" AND " : u" WHERE ";
}

std::u16string TOryUtilsManipulacaoSQL::FormatarCondicaoComOperadorSQL(std::u16string_view ATexto) {
    return BuscarOperadorSQL(ATexto).append(ATexto);
}

std::u16string TOryUtilsManipulacaoSQL::CriarCondicaoSQL(const std::vector<std::u16string>& ACondicoes,
                                                         std::u16string_view AOperador) {
    std::u16string resultado;
    resultado.append(ACondicoes.size(), u'(');
    for (std::size_t i = 0; i < ACondicoes.size(); ++i) {
        if (i) resultado += AOperador;
        (resultado += ACondicoes[i]) += u')';
    }
    return resultado;
}

std::u16string TOryUtilsManipulacaoSQL::FormatarParametroPesquisa(std::u16string_view AValor, TFieldType ATipoCampo,
                                                                  TTipoFormatoParametroPesquisa ATipoFormato) {
    if (EhDecimal(ATipoCampo)) return FormatarDecimal(AValor, ATipoFormato);
    if (ATipoFormato != fppPesquisaBancoDados) return std::u16string(AValor);
    std::u16string resultado;
    Interno::AnexarComApostrofosDobrados(resultado, AValor);
    return resultado;
}

}  // namespace OryUtils
