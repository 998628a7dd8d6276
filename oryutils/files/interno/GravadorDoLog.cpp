#include "oryutils/files/interno/GravadorDoLog.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/files/interno/AmbienteDoLog.hpp"
#include "oryutils/platform/Pastas.hpp"

#include <cstring>
#include <iterator>

namespace OryUtils {
namespace {

using namespace Interno;

// Of what the library takes for delimiters the system may take only one: "C:\Logs\x.log" is all name on Linux.
void CriarPastaQueFalta(std::u16string_view AArquivo) {
    const char16_t separadores[] = {u'/', BuscarSeparadorDePastas()};
    const std::u16string_view pasta =
        AArquivo.substr(0, AArquivo.find_last_of(separadores, AArquivo.npos, std::size(separadores)) + 1);
    if (!pasta.empty() && !TOryUtilsFiles::ExisteDiretorio(pasta)) CriarPasta(pasta);
}

// As ==, at the speed of memory: it is asked at each save.
bool SaoIguais(std::u16string_view AUm, std::u16string_view AOutro) {
    return AUm.size() == AOutro.size() && std::memcmp(AUm.data(), AOutro.data(), AUm.size() * sizeof(char16_t)) == 0;
}

}  // namespace

bool TGravadorDoLog::Gravar(std::u16string_view AArquivo, const TTextoPronto& ATexto, TModoGravacao AModo,
                            TAmbienteDoLog& AAmbiente) {
    constexpr int CTentativas = 14;
    FPastaConferida = false;
    for (int i = 1; i <= CTentativas; ++i) {
        AAmbiente.AoTentarGravar(i);
        if (Tentar(AArquivo, ATexto, AModo, AAmbiente)) return true;
        Esquecer();
    }
    return false;
}

bool TGravadorDoLog::Tentar(std::u16string_view AArquivo, const TTextoPronto& ATexto, TModoGravacao AModo,
                            TAmbienteDoLog& AAmbiente) {
    const bool acrescentar = AModo == mgAcrescentar;
    if (acrescentar && FMarca && FGeracao == ATexto.Geracao && SaoIguais(FArquivo, AArquivo)) {
        const TResultado resultado = Acrescentar(ATexto.Bytes.substr(FGravados), AAmbiente);
        if (resultado != reMudou) {
            FGravados = ATexto.Bytes.size();
            return resultado == reFeito;
        }
    }
    if (AArquivo.find(u'\0') != AArquivo.npos) return false;  // the system would end the name there
    FArquivo = AArquivo;
    FGeracao = ATexto.Geracao;
    FGravados = ATexto.Bytes.size();
    if (!FPastaConferida) CriarPastaQueFalta(AArquivo);
    FPastaConferida = true;
    return Reescrever(ATexto.Bytes, acrescentar, AAmbiente);
}

TGravadorDoLog::TResultado TGravadorDoLog::Acrescentar(std::string_view ABytes, TAmbienteDoLog& AAmbiente) {
    if (!FVigiado.EstahVigiando()) return AcrescentarAbrindo(ABytes, AAmbiente);
    bool mexido = false;
    const bool feito = FVigiado.Acrescentar(ABytes, mexido);
    if (!mexido) {
        AAmbiente.AoEscrever(ABytes.size());
        return feito ? reFeito : reFalhou;
    }
    // Somebody may only have read it.
    Soltar();
    return FMarca ? AcrescentarAbrindo(ABytes, AAmbiente) : reMudou;
}

TGravadorDoLog::TResultado TGravadorDoLog::AcrescentarAbrindo(std::string_view ABytes, TAmbienteDoLog& AAmbiente) {
    constexpr int CAntesDeVigiar = 32;  // a watch pays for logs that save again and again
    TFluxo fluxo;
    const std::string nome = ParaUtf8(FArquivo);
    if (fluxo.AbrirParaAcrescentar(nome) != efNenhum || fluxo.BuscarMarca() != FMarca) return reMudou;
    if (ABytes.empty()) return reFeito;
    AAmbiente.AoEscrever(ABytes.size());
    if (fluxo.Escrever(ABytes) != efNenhum) return reFalhou;
    FMarca = fluxo.FixarMarca();
    if (FMarca && ++FSeguidos >= CAntesDeVigiar) {
        FSeguidos = 0;
        if (FVigiado.Iniciar(fluxo, nome, *FMarca)) return reFeito;
    }
    return fluxo.Fechar() == efNenhum ? reFeito : reFalhou;
}

bool TGravadorDoLog::Reescrever(std::string_view ABytes, bool AMarcar, TAmbienteDoLog& AAmbiente) {
    Esquecer();
    TFluxo fluxo;
    if (fluxo.CriarOuEsvaziar(ParaUtf8(FArquivo)) != efNenhum) return false;
    AAmbiente.AoEscrever(ABytes.size());
    if (fluxo.Escrever(ABytes) != efNenhum) return false;
    if (AMarcar) FMarca = fluxo.FixarMarca();
    return fluxo.Fechar() == efNenhum;
}

void TGravadorDoLog::Soltar() noexcept {
    if (FVigiado.EstahVigiando()) FMarca = FVigiado.Parar();
}

void TGravadorDoLog::Esquecer() noexcept {
    FVigiado.Fechar();
    FMarca.reset();
    FSeguidos = 0;
}

void TGravadorDoLog::AceitarNovaData() {
    if (!FMarca) return;
    TFluxo fluxo;
    if (fluxo.AbrirParaAcrescentar(ParaUtf8(FArquivo)) != efNenhum) return Esquecer();
    std::optional<TMarcaDeArquivo> marca = fluxo.BuscarMarca();
    if (!marca) return Esquecer();
    FMarca->Tempo = marca->Tempo;
    if (marca != FMarca) Esquecer();
}

}  // namespace OryUtils
