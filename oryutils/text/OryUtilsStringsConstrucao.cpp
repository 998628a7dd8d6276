// Counting, extraction, padding and small builders.
#include "oryutils/text/OryUtilsStrings.hpp"
#include "oryutils/text/interno/Busca.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

// A size asked for; nothing for a negative one.
constexpr std::size_t Tamanho(int ATamanho) { return ATamanho > 0 ? static_cast<std::size_t>(ATamanho) : 0; }

// What stands before the last "\"; nothing when there is none.
std::u16string_view AntesDaUltimaBarra(std::u16string_view ACaminho) {
    const std::size_t barra = ACaminho.rfind(u'\\');
    return barra == std::u16string_view::npos ? std::u16string_view() : ACaminho.substr(0, barra);
}

// A position counted from 1, where 0 means "not there".
constexpr std::size_t APartirDeUm(std::size_t APosicao) {
    return APosicao == Interno::CNaoEncontrado ? 0 : APosicao + 1;
}

}  // namespace

int TOryUtilsStrings::BuscarQuantidadeCaractereNoTexto(std::u16string_view ATexto, char16_t ACaractere) {
    return static_cast<int>(std::count(ATexto.begin(), ATexto.end(), ACaractere));
}

int TOryUtilsStrings::BuscarQuantidadeCaractereEmSequencia(std::u16string_view ATexto, char16_t ACaractere) {
    if (Aparar(ATexto).empty()) return 0;
    int pares = 0;
    for (std::size_t i = 1; i < ATexto.size(); ++i)
        if (ATexto[i - 1] == ACaractere && ATexto[i] == ACaractere) ++pares;
    return pares;
}

std::u16string TOryUtilsStrings::BuscarTextoFormatado(std::u16string_view ATexto, int ATamanho,
                                                      std::u16string_view APreenchimento) {
    const std::size_t tamanho = Tamanho(ATamanho);
    std::u16string resultado(ATexto.substr(0, tamanho));
    if (APreenchimento.empty()) return resultado;
    resultado.reserve(tamanho);
    while (resultado.size() < tamanho) resultado.append(APreenchimento.substr(0, tamanho - resultado.size()));
    return resultado;
}

std::u16string TOryUtilsStrings::FormatarEspacoEmBranco(std::u16string_view ATexto, int ATamanho) {
    std::u16string resultado(ATexto);
    resultado.resize(std::max(ATexto.size(), Tamanho(ATamanho)), u' ');
    return resultado;
}

std::u16string TOryUtilsStrings::RepetirCaractere(char16_t ACaractere, int AQuantidade) {
    return std::u16string(Tamanho(AQuantidade), ACaractere);
}

std::u16string TOryUtilsStrings::BuscarUltimoCaractereTexto(std::u16string_view ATexto) {
    const std::u16string_view aparado = Aparar(ATexto);
    return aparado.empty() ? std::u16string() : std::u16string(1, aparado.back());
}

std::u16string TOryUtilsStrings::CompletarUltimoCaractereTexto(char16_t ACaractere, std::u16string_view ATexto) {
    if (Aparar(ATexto).empty()) return {};
    std::u16string resultado(ATexto);
    if (resultado.back() != ACaractere) resultado += ACaractere;
    return resultado;
}

std::u16string TOryUtilsStrings::ExcluirUltimoCaractereTexto(std::u16string_view ATexto, char16_t ACaractere) {
    std::u16string_view aparado = Aparar(ATexto);
    if (aparado.empty() || (ACaractere != u'\0' && aparado.back() != ACaractere)) return std::u16string(ATexto);
    aparado.remove_suffix(1);
    return std::u16string(Aparar(aparado));
}

std::u16string TOryUtilsStrings::BuscarValorPadrao(std::u16string_view AValor, std::u16string_view APadrao) {
    return std::u16string(Aparar(AValor).empty() ? APadrao : AValor);
}

std::u16string TOryUtilsStrings::BuscarPastaDoNivelAnterior(std::u16string_view ACaminho) {
    return std::u16string(AntesDaUltimaBarra(AntesDaUltimaBarra(ACaminho)));
}

std::u16string TOryUtilsStrings::ExtrairUltimaPastaDaURL(std::u16string_view AURL) {
    // Without ".br" its position counts as 0, so the rest starts at the third character.
    constexpr std::u16string_view CDominio = u".br";
    const std::size_t inicio = APartirDeUm(AURL.find(CDominio)) + CDominio.size() - 1;
    if (inicio >= AURL.size()) return {};
    const std::u16string_view resto = AURL.substr(inicio);
    const std::size_t barra = resto.rfind(u'/');
    if (barra == std::u16string_view::npos) return LimparTexto(resto);
    return LimparTexto(resto.substr(barra + 1));
}

std::u16string TOryUtilsStrings::ExtrairTextoEntreTags(std::u16string_view ATexto, std::u16string_view ATag) {
    const std::u16string abertura = std::u16string(u"<").append(ATag);
    const std::u16string fechamento = std::u16string(u"</").append(ATag).append(u">");
    const std::size_t fim = Interno::Localizar(ATexto, fechamento);
    if (fim == Interno::CNaoEncontrado) return {};
    // A missing opening tag counts as position 0 and is not noticed.
    const std::size_t busca = APartirDeUm(Interno::Localizar(ATexto, abertura)) + ATag.size();
    const std::size_t maior = ATexto.find(u'>', busca);
    if (maior >= fim) return {};
    return std::u16string(ATexto.substr(maior + 1, fim - maior - 1));
}

std::u16string TOryUtilsStrings::LimparTagsHtml(std::u16string_view ATexto) {
    std::u16string resultado;
    resultado.reserve(ATexto.size());
    bool dentro = false;
    for (const char16_t c : ATexto) {
        if (c == u'<') dentro = true;
        if (!dentro && c != u'>') resultado += c;
        if (c == u'>') dentro = false;
    }
    return resultado;
}

std::u16string TOryUtilsStrings::FormatarQuebrasDeTextoHtml(std::u16string_view ATexto) {
    std::u16string resultado;
    while (!ATexto.empty()) {
        const std::size_t fim = std::min(ATexto.find_first_of(u"\r\n"), ATexto.size());
        resultado.append(u"<P>").append(ATexto, 0, fim).append(u"</P>");
        const bool quebraDupla = ATexto.substr(fim, 2) == u"\r\n";
        ATexto.remove_prefix(std::min(fim + (quebraDupla ? 2 : 1), ATexto.size()));
    }
    return resultado;
}

bool TOryUtilsStrings::PossuiGravacaoMascara(std::u16string_view AMascara) {
    constexpr std::size_t CCauda = 4;
    if (AMascara.size() < CCauda) return false;
    const std::u16string_view cauda = AMascara.substr(AMascara.size() - CCauda);
    const std::size_t ultimo = cauda.rfind(u';');
    if (ultimo == std::u16string_view::npos) return false;
    const std::size_t penultimo = ultimo == 0 ? std::u16string_view::npos : cauda.rfind(u';', ultimo - 1);
    const std::size_t inicio = penultimo == std::u16string_view::npos ? ultimo : penultimo;
    return inicio + 1 < CCauda && cauda[inicio + 1] != u'0';
}

}  // namespace OryUtils
