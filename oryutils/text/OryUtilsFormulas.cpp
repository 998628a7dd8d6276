// The object: its formula, its variables and the steps of an evaluation that work on plain text.
#include "oryutils/text/OryUtilsFormulas.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"
#include "oryutils/text/interno/Busca.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

bool IniciaNome(char16_t ACaractere, const TFormatSettings& AFormatos) noexcept {
    switch (ACaractere) {
        case u'*':
        case u'/':
        case u'+':
        case u'-':
        case u'(':
        case u')':
            return false;
        default:
            return !EhDigito(ACaractere) && ACaractere != AFormatos.DecimalSeparator &&
                   ACaractere != AFormatos.ThousandSeparator;
    }
}

}  // namespace

void TOryUtilsFormulas::SetExpressao(std::u16string_view AExpressao) {
    if (AExpressao == FExpressao) return;
    FExpressao.assign(AExpressao);
    FValor = Calcular(FExpressao);
}

void TOryUtilsFormulas::SetValor(Extended AValor) {
    if (AValor == FValor) return;
    FValor = AValor;
    FExpressao = AValor == 0 ? std::u16string() : ExtendedParaTexto(AValor);
}

void TOryUtilsFormulas::SetVariaveis(const std::vector<std::u16string>& AVariaveis) {
    FVariaveis = RetirarEspacosEmBranco(AVariaveis);
    FVariavelPorNome.clear();
    for (std::size_t i = 0; i < FVariaveis.size(); ++i) IndexarVariavel(i);
}

void TOryUtilsFormulas::AdicionarVariavel(std::u16string_view ANome, Extended AValor) {
    std::u16string linha(ANome);
    (linha += u'=') += ExtendedParaTexto(AValor);
    if (const auto existente = FVariavelPorNome.find(MinusculaDe(ANome)); existente != FVariavelPorNome.end()) {
        TVariavel& variavel = existente->second;
        FVariaveis[variavel.Linha] = std::move(linha);
        variavel.Regras = {};
        return;
    }
    FVariaveis.push_back(std::move(linha));
    IndexarVariavel(FVariaveis.size() - 1);
}

void TOryUtilsFormulas::AdicionarVariaveis(const std::vector<std::u16string>& ANomes,
                                           const std::vector<Extended>& AValores) {
    if (ANomes.size() != AValores.size())
        throw Exception(u"O número de itens de argumentos das variáveis deve ser igual.");
    for (std::size_t i = 0; i < ANomes.size(); ++i) AdicionarVariavel(ANomes[i], AValores[i]);
}

void TOryUtilsFormulas::LimparVariaveis() {
    FVariaveis.clear();
    FVariavelPorNome.clear();
    FExpressaoResolvida.clear();
}

/// Lines without "=" name nothing. Of equal names the first line stays.
void TOryUtilsFormulas::IndexarVariavel(std::size_t ALinha) {
    const std::u16string& linha = FVariaveis[ALinha];
    const std::size_t igual = linha.find(u'=');
    if (igual != linha.npos) FVariavelPorNome.try_emplace(MinusculaDe(linha.substr(0, igual)), TVariavel{ALinha});
}

/// What stands for the variable in formulas.
const std::u16string& TOryUtilsFormulas::BuscarTextoDaVariavel(std::u16string_view ANome) {
    const auto encontrada = FVariavelPorNome.find(MinusculaDe(ANome));
    if (encontrada == FVariavelPorNome.end()) throw Exception(u"Variável '" + std::u16string(ANome) + u"' não existe.");
    TVariavel& variavel = encontrada->second;
    const TRegras regras{FTipoAjusteValor, FCasasDecimais, FormatSettings().DecimalSeparator};
    if (variavel.Regras != regras) {
        std::u16string_view valor = FVariaveis[variavel.Linha];
        valor.remove_prefix(valor.find(u'=') + 1);
        variavel.Texto = ExtendedParaTexto(AjustarValorVariavel(TextoParaExtended(valor)));
        variavel.Regras = regras;
    }
    return variavel.Texto;
}

Extended TOryUtilsFormulas::Calcular(std::u16string_view AExpressao) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return Calcular(AExpressao); });
    std::u16string formula(AExpressao);
    ResolverFuncoes(formula);
    ResolverVariaveis(formula);
    FExpressaoResolvida = formula;
    return CalcularSemNomes(formula);
}

/// The steps behind ResolverVariaveis.
Extended TOryUtilsFormulas::CalcularSemNomes(std::u16string& AFormula) {
    ResolverDuploSinalNegativo(AFormula);
    ResolverParenteses(AFormula);
    return CalcularExpressao(AFormula);
}

Extended TOryUtilsFormulas::AjustarValorVariavel(Extended AValor) const {
    switch (FTipoAjusteValor) {
        case maMatematico:
            return TOryUtilsMatematica::Arredondar(AValor, maMatematico, FCasasDecimais,
                                                   static_cast<std::uint8_t>(FCasasDecimais + 1));
        case maTruncamento:
            return TOryUtilsMatematica::Arredondar(AValor, maTruncamento, FCasasDecimais, 10);
        default:
            return AValor;
    }
}

std::u16string TOryUtilsFormulas::RetirarEspacosEmBranco(std::u16string_view ATexto) {
    std::u16string texto(ATexto);
    std::erase(texto, u' ');
    return texto;
}

std::vector<std::u16string> TOryUtilsFormulas::RetirarEspacosEmBranco(const std::vector<std::u16string>& ALinhas) {
    std::vector<std::u16string> linhas(ALinhas);
    for (std::u16string& linha : linhas) std::erase(linha, u' ');
    return linhas;
}

bool TOryUtilsFormulas::EhVariavel(char16_t ACaractere) { return IniciaNome(ACaractere, FormatSettings()); }

void TOryUtilsFormulas::ResolverVariaveis(std::u16string& AFormula) {
    const TFormatSettings& formatos = FormatSettings();
    const auto iniciaNome = [&](char16_t c) { return IniciaNome(c, formatos); };
    const auto ehDoNome = [&](char16_t c) { return iniciaNome(c) || EhDigito(c) || c == formatos.DecimalSeparator; };
    if (std::none_of(AFormula.begin(), AFormula.end(), iniciaNome)) return;
    // No formula grows to this size, unless the values of variables name variables ("1E20" names E20) for ever.
    const std::size_t limite = 64 * AFormula.size() + 64 * 1024;

    // What is still to be read, backwards. The value of a variable is read again, so it goes to the end.
    std::u16string resto(AFormula.rbegin(), AFormula.rend());
    std::u16string resolvida;
    while (true) {
        const auto nome = std::find_if(resto.rbegin(), resto.rend(), iniciaNome);
        resolvida.append(resto.rbegin(), nome);
        if (nome == resto.rend()) break;
        const auto fimDoNome = std::find_if_not(nome, resto.rend(), ehDoNome);
        const std::u16string& valor = BuscarTextoDaVariavel(std::u16string(nome, fimDoNome));
        if (resolvida.size() + resto.size() > limite) throw Exception(u"Variáveis da fórmula sem fim.");
        resto.erase(fimDoNome.base(), resto.end());
        resto.append(valor.rbegin(), valor.rend());
    }
    AFormula = std::move(resolvida);
}

void TOryUtilsFormulas::ResolverDuploSinalNegativo(std::u16string& AFormula) {
    if (AFormula.find(GetDuploSinalNegativo()) != AFormula.npos)
        AFormula = Interno::SubstituirTodos(AFormula, GetDuploSinalNegativo(), u"+");
}

}  // namespace OryUtils
