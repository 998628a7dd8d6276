#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Processos.hpp"
#include "oryutils/runtime/FormatoNumero.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

namespace OryUtils {
namespace {

bool MesmoNome(std::u16string_view AUm, std::u16string_view AOutro) {
    return IguaisIgnorandoCaixa(Aparar(AUm), Aparar(AOutro));
}

template <typename TCondicao>
bool Existe(std::u16string_view AUsuario, TCondicao ACondicao) {
    const std::unique_ptr<TProcessoItems> processos = TOryUtilsSistema::BuscarListaDeProcessosWindows(AUsuario);
    for (int i = 0; i < processos->GetCount(); ++i)
        if (ACondicao(processos->GetItems(i))) return true;
    return false;
}

}  // namespace

std::unique_ptr<TProcessoItems> TOryUtilsSistema::BuscarListaDeProcessosWindows(std::u16string_view AUsuario) {
    const std::u16string_view usuario = Aparar(AUsuario);
    auto processos = std::make_unique<TProcessoItems>();
    const auto quer = [&](std::u16string_view ADono) { return usuario.empty() || MesmoNome(usuario, ADono); };
    for (Interno::TProcessoDoSistema& processo : Interno::ListarProcessos(quer)) {
        TProcessoItem& item = processos->Add();
        item.Usuario = std::move(processo.Usuario);
        item.Processo = std::move(processo.Nome);
        item.EnderecoMemoria = std::move(processo.Alca);
        item.Caminho = std::move(processo.Caminho);
        item.IDProcesso = processo.ID;
        item.MemoriaUsada = processo.Memoria;
    }
    return processos;
}

bool TOryUtilsSistema::ProcessoEstahRodando(std::u16string_view AProcesso, std::u16string_view AUsuario) {
    return Existe(AUsuario, [&](const TProcessoItem& AItem) { return MesmoNome(AItem.Processo, AProcesso); });
}

bool TOryUtilsSistema::ProcessoEstahRodando(std::uint32_t AIDProcesso, std::u16string_view AUsuario) {
    return AIDProcesso != 0 &&
           Existe(AUsuario, [&](const TProcessoItem& AItem) { return AItem.IDProcesso == AIDProcesso; });
}

bool TOryUtilsSistema::FinalizouProcesso(std::u16string_view AExecutavel) {
    return Interno::TerminarProcessos(
               [&](std::u16string_view ANome) { return IguaisIgnorandoCaixa(ANome, AExecutavel); }) > 0;
}

TResultStatus TOryUtilsSistema::FinalizouProcessoPeloPID(std::uint32_t AIDProcesso) {
    const std::u16string id = InteiroParaTexto(AIDProcesso);
    std::u16string erro;
    switch (Interno::TerminarProcesso(AIDProcesso, erro)) {
        case Interno::fpTerminado:
            return {};
        case Interno::fpNaoAberto:
            return {false, u"Não foi possível finalizar o processo pois o PID [ " + id +
                               u" ] não foi encontrado ou não está mais ativo."};
        default:
            return {false, u"Ocorreu um erro ao tentar finalizar o processo referente ao ID " + id +
                               u".\r\nErro ocorrido: \r\n\r\n" + erro + u"."};
    }
}

void TOryUtilsSistema::BuscarUsuarioEDominioDoProcesso(std::uint32_t AIDProcesso, std::u16string& AUsuario,
                                                       std::u16string& ADominio) {
    Interno::TDonoDeProcesso dono = Interno::BuscarDonoDoProcesso(AIDProcesso);
    AUsuario = std::move(dono.Usuario);
    ADominio = std::move(dono.Dominio);
}

std::u16string TOryUtilsSistema::BuscarCaminhoArquivoPeloIDProcesso(std::uint32_t AIDProcesso) {
    return Interno::BuscarCaminhoDoProcesso(AIDProcesso);
}

TAlcaDeProcesso TOryUtilsSistema::BuscarEnderecoMemoriaProcesso(std::u16string_view AProcesso) {
    return Interno::AbrirProcesso([&](std::u16string_view ANome) { return MesmoNome(ANome, AProcesso); });
}

std::uint64_t TOryUtilsSistema::BuscarMemoriaUsadaEnderecoProcesso(const TAlcaDeProcesso& AEndereco) {
    return Interno::BuscarMemoriaDoProcesso(AEndereco);
}

std::u16string TOryUtilsSistema::BuscarMemoriaUsadaProcesso(std::u16string_view AProcesso) {
    const std::uint64_t bytes = BuscarMemoriaUsadaEnderecoProcesso(BuscarEnderecoMemoriaProcesso(AProcesso));
    const std::int64_t quilobytes = FormatarBytes(static_cast<std::int64_t>(bytes), fbKilobytes);
    return FormatarNumero(u",.# KB", static_cast<Extended>(quilobytes));
}

void TOryUtilsSistema::LiberarMemoriaResidualProcesso() { Interno::LiberarMemoria(); }
void TOryUtilsSistema::AbrirPropriedadesDataHora() { Interno::AbrirConfiguracaoDeDataHora(); }

}  // namespace OryUtils
