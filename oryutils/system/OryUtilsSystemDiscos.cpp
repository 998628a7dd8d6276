#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/platform/Discos.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/RegrasDeDiscos.hpp"

namespace OryUtils {
namespace {

constexpr std::int64_t CPasso = 1024;

}  // namespace

std::unique_ptr<TOryUtilsSystemInfoDiscoRigidoIOP> TOryUtilsSistema::BuscarInformacoesDiscoRigido(
    std::u16string_view AUnidade, TFormatoBytes AFormato) {
    const auto espaco = Interno::BuscarEspacoEmDisco(AUnidade).value_or(Interno::TEspacoEmDisco{});
    const std::u16string volume = Interno::BuscarNomeDoVolume(AUnidade);
    const std::u16string_view nome = Aparar(volume);
    auto informacoes = std::make_unique<TOryUtilsSystemInfoDiscoRigidoIOP>();
    informacoes->NomeVolume = nome.empty() ? u"Não identificado" : nome;
    informacoes->EspacoLivre = FormatarBytes(static_cast<std::int64_t>(espaco.Livre), AFormato);
    informacoes->EspacoTotal = FormatarBytes(static_cast<std::int64_t>(espaco.Total), AFormato);
    informacoes->Unidade = AUnidade;
    informacoes->FormatoBytes = AFormato;
    return informacoes;
}

std::int64_t TOryUtilsSistema::BuscarQuantidadeEspacoLivreEmDisco(std::u16string_view AUnidade,
                                                                  TFormatoBytes AFormato) {
    const auto espaco = Interno::BuscarEspacoEmDisco(AUnidade).value_or(Interno::TEspacoEmDisco{});
    return FormatarBytes(static_cast<std::int64_t>(espaco.Livre), AFormato);
}

TResultStatus TOryUtilsSistema::ValidouEspacoLivreEmDisco(std::u16string_view AUnidade, std::int64_t AQuantidade,
                                                          TFormatoBytes AFormato) {
    return Interno::ConferirEspacoLivre(*BuscarInformacoesDiscoRigido(AUnidade, AFormato), AQuantidade);
}

std::int64_t TOryUtilsSistema::FormatarBytes(std::int64_t ABytes, TFormatoBytes AFormato) {
    if (AFormato > fbTerabytes) return ABytes;
    for (int passo = fbBytes; passo < AFormato; ++passo) ABytes /= CPasso;
    return ABytes;
}

std::vector<std::u16string> TOryUtilsSistema::BuscarListaDrivesComputador() { return Interno::ListarUnidades(); }

int TOryUtilsSistema::BuscarIndiceUnidadeDisco(std::u16string_view AUnidade) {
    return Interno::BuscarNumeroDaUnidade(AUnidade);
}

}  // namespace OryUtils
