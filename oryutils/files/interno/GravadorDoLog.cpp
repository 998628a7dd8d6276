#include "oryutils/files/interno/GravadorDoLog.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/files/UnOryUtilsArquivoLogAmbiente.hpp"
#include "oryutils/platform/Pastas.hpp"

#include <iterator>

namespace OryUtils {
namespace {

using namespace Interno;

// The library takes "/" and "\" for delimiters, the system perhaps only one: on Linux "C:\Logs\x.log" is one name.
void CriarPastaQueFalta(std::u16string_view AArquivo) {
    const char16_t separadores[] = {u'/', BuscarSeparadorDePastas()};
    const std::u16string_view pasta =
        AArquivo.substr(0, AArquivo.find_last_of(separadores, AArquivo.npos, std::size(separadores)) + 1);
    if (!pasta.empty() && !TOryUtilsFiles::ExisteDiretorio(pasta)) CriarPasta(pasta);
}

}  // namespace

bool TGravadorDoLog::Gravar(std::u16string_view AArquivo, const TBuscarTexto& ABuscarTexto, TModoGravacao AModo,
                            TAmbienteDoLog& AAmbiente) {
    constexpr int CTentativas = 14;
    const bool acrescentar = AModo == mgAcrescentar;
    bool pastaConferida = false;
    for (int i = 1; i <= CTentativas; ++i) {
        AAmbiente.AoTentarGravar(i);
        const auto texto = ABuscarTexto();
        if (!texto) continue;
        if (acrescentar && PodeContinuar(AArquivo, texto->Geracao, AAmbiente)) {
            if (Acrescentar(texto->Bytes.substr(FMarca->Tamanho), AAmbiente)) return true;
            continue;
        }
        if (!pastaConferida) CriarPastaQueFalta(AArquivo);
        pastaConferida = true;
        if (Reescrever(AArquivo, *texto, acrescentar, AAmbiente)) return true;
    }
    return false;
}

bool TGravadorDoLog::Soltar() noexcept {
    const bool escrito = FFluxo.Fechar() == efNenhum;
    if (!escrito) FMarca.reset();
    return escrito;
}

bool TGravadorDoLog::PodeContinuar(std::u16string_view AArquivo, std::uint64_t AGeracao, TAmbienteDoLog& AAmbiente) {
    constexpr std::chrono::milliseconds CEntreOlhares(100);
    if (!FMarca || FGeracao != AGeracao || FArquivo != AArquivo) return false;
    const auto agora = AAmbiente.BuscarRelogio();
    if (FFluxo.EstahAberto() && agora < FProximoOlhar) return true;
    FProximoOlhar = agora + CEntreOlhares;
    const std::string nome = ParaUtf8(AArquivo);
    if (FFluxo.EstahAberto()) return BuscarMarcaDoArquivo(nome) == FMarca;
    return FFluxo.AbrirParaAcrescentar(nome) == efNenhum && FFluxo.BuscarMarca() == FMarca;
}

bool TGravadorDoLog::Acrescentar(std::string_view ABytes, TAmbienteDoLog& AAmbiente) {
    if (ABytes.empty()) return true;
    AAmbiente.AoEscrever(ABytes.size());
    if (FFluxo.Escrever(ABytes) == efNenhum) {
        FMarca->Tamanho += ABytes.size();
        return true;
    }
    FMarca.reset();  // a part may have been written
    return false;
}

bool TGravadorDoLog::Reescrever(std::u16string_view AArquivo, const TTextoPronto& ATexto, bool AMarcar,
                                TAmbienteDoLog& AAmbiente) {
    FMarca.reset();
    FFluxo.Fechar();
    if (AArquivo.find(u'\0') != AArquivo.npos) return false;  // the system would end the name there
    if (FFluxo.AbrirParaReescrever(ParaUtf8(AArquivo)) != efNenhum) return false;
    AAmbiente.AoEscrever(ATexto.Bytes.size());
    // Over the old text, never into an emptied file: a log only grows, so that whatever a killed process leaves has
    // every line that was saved before.
    const bool escrito = FFluxo.Escrever(ATexto.Bytes) == efNenhum && FFluxo.CortarAqui() == efNenhum;
    const auto marca = AMarcar ? FFluxo.BuscarMarca() : std::nullopt;
    if (FFluxo.Fechar() != efNenhum || !escrito) return false;
    // Another size: somebody else has written too, and the next save writes the whole again.
    if (marca && marca->Tamanho == ATexto.Bytes.size()) FMarca = marca;
    FArquivo = AArquivo;
    FGeracao = ATexto.Geracao;
    return true;
}

}  // namespace OryUtils
