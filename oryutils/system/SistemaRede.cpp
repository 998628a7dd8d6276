#include "oryutils/platform/Rede.hpp"
#include "oryutils/runtime/Caixa.hpp"
#include "oryutils/runtime/Caracteres.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/RegrasDeRede.hpp"

namespace OryUtils {
namespace {

std::u16string EscreverIP(const Plataforma::TEnderecoIP& AEndereco) {
    return PreencherModelo(u"%d.%d.%d.%d", {InteiroParaTexto(AEndereco[0]), InteiroParaTexto(AEndereco[1]),
                                            InteiroParaTexto(AEndereco[2]), InteiroParaTexto(AEndereco[3])});
}

std::u16string EscreverMac(const Plataforma::TEnderecoMac& AMac) {
    constexpr std::u16string_view CDigitos = u"0123456789abcdef";
    std::u16string texto;
    for (const std::uint8_t byte : AMac) {
        if (!texto.empty()) texto += u'-';
        texto += CDigitos[byte >> 4];
        texto += CDigitos[byte & 15];
    }
    return texto;
}

std::vector<std::u16string> ListarMacs(const std::optional<Plataforma::TEnderecoIP>& AEndereco) {
    std::vector<std::u16string> lista;
    for (const Plataforma::TEnderecoMac& mac : Plataforma::ListarEnderecosMac(AEndereco))
        lista.push_back(EscreverMac(mac));
    return lista;
}

std::vector<std::u16string> ListarMacsDe(std::u16string_view AIP) {
    const auto endereco = Plataforma::LerEnderecoIP(AIP);
    return endereco ? ListarMacs(endereco) : std::vector<std::u16string>();
}

}  // namespace

std::u16string TOryUtilsSistema::BuscarIPLocal() {
    std::u16string erro;
    const auto endereco = Plataforma::BuscarEnderecoDestaMaquina(erro);
    if (!endereco)
        throw Exception(
            u"Ocorreu um erro ao tentar executar o método de retorno do IP local <<GetIPLocal>>.\r\nErro ocorrido: " +
            erro);
    return EscreverIP(*endereco);
}

std::u16string TOryUtilsSistema::BuscarIPPeloNomeComputador(std::u16string_view ANomeComputador) {
    const auto endereco = Plataforma::ResolverNome(ANomeComputador);
    return endereco ? EscreverIP(*endereco) : std::u16string();
}

std::u16string TOryUtilsSistema::BuscarNomeComputadorPeloIP(std::u16string_view AIP) {
    const auto endereco = Plataforma::LerEnderecoIP(AIP);
    return endereco ? Plataforma::BuscarNomeDoEndereco(*endereco) : std::u16string();
}

std::vector<std::u16string> TOryUtilsSistema::BuscarListaIPLocalViaARP() {
    return Sistema::BuscarListaIPLocalViaARP(Sistema::ExecutorDoSistema());
}

std::u16string TOryUtilsSistema::BuscarIPLocalViaARP() {
    const std::vector<std::u16string> lista = BuscarListaIPLocalViaARP();
    return lista.empty() ? std::u16string() : lista.front();
}

std::u16string TOryUtilsSistema::BuscarEnderecoMac2(std::u16string_view AIP) {
    std::u16string ip = MinusculaDe(Aparar(AIP));
    if (ip == u"localhost" || ip == u"127.0.0.1") ip = BuscarIPLocal();
    const auto endereco = Plataforma::LerEnderecoIP(ip);
    const auto mac = endereco ? Plataforma::PerguntarEnderecoMac(*endereco) : std::nullopt;
    return mac ? EscreverMac(*mac) : std::u16string();
}

std::u16string TOryUtilsSistema::BuscarEnderecoMac(std::u16string_view AIP) {
    return Sistema::BuscarEnderecoMac(
        AIP, {.IPLocal = BuscarIPLocal,
              .Rede = BuscarEnderecoMac2,
              .Adaptadores = ListarMacsDe,
              .TodosOsAdaptadores = [] { return ListarMacs(std::nullopt); },
              .ARP = [](std::u16string_view ARemoto) { return BuscarEnderecoMacViaARP(ARemoto); }});
}

std::u16string TOryUtilsSistema::BuscarEnderecoMacViaARP(std::u16string_view AIP) {
    return Sistema::BuscarEnderecoMacViaARP(Sistema::ExecutorDoSistema(), AIP, CosturaInterface().MostrarCursorOcupado);
}

std::u16string TOryUtilsSistema::ExtrairEnderecoMACComandoARP(std::u16string_view ATexto) {
    return Sistema::ExtrairEnderecoMac(ATexto);
}

bool TOryUtilsSistema::EhIPLocal(std::u16string_view AIP, bool AConsultarARP) {
    return Sistema::EhIPLocal(AIP, AConsultarARP,
                              {.NomeComputador = BuscarNomeComputador, .IPLocal = BuscarIPLocal, .ListaViaARP = [] {
                                   return BuscarListaIPLocalViaARP();
                               }});
}

}  // namespace OryUtils
