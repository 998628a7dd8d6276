#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Hexadecimal.hpp"
#include "oryutils/platform/Rede.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/RegrasDeRede.hpp"

namespace OryUtils {
namespace {

std::u16string EscreverIP(const Interno::TEnderecoIP& AEndereco) {
    return PreencherModelo(u"%d.%d.%d.%d", {InteiroParaTexto(AEndereco[0]), InteiroParaTexto(AEndereco[1]),
                                            InteiroParaTexto(AEndereco[2]), InteiroParaTexto(AEndereco[3])});
}

std::u16string EscreverMac(const Interno::TEnderecoMac& AMac) {
    std::u16string texto;
    for (const std::uint8_t byte : AMac) {
        if (!texto.empty()) texto += u'-';
        texto += Interno::TextoHexadecimal(byte, 2);
    }
    return texto;
}

std::vector<std::u16string> ListarMacs(const std::optional<Interno::TEnderecoIP>& AEndereco) {
    std::vector<std::u16string> lista;
    for (const Interno::TEnderecoMac& mac : Interno::ListarEnderecosMac(AEndereco)) lista.push_back(EscreverMac(mac));
    return lista;
}

std::vector<std::u16string> ListarMacsDe(std::u16string_view AIP) {
    const auto endereco = Interno::LerEnderecoIP(AIP);
    return endereco ? ListarMacs(endereco) : std::vector<std::u16string>();
}

}  // namespace

std::u16string TOryUtilsSistema::BuscarIPLocal() {
    std::u16string erro;
    const auto endereco = Interno::BuscarEnderecoDestaMaquina(erro);
    if (!endereco)
        throw Exception(
            u"Ocorreu um erro ao tentar executar o método de retorno do IP local <<GetIPLocal>>.\r\nErro ocorrido: " +
            erro);
    return EscreverIP(*endereco);
}

std::u16string TOryUtilsSistema::BuscarIPPeloNomeComputador(std::u16string_view ANomeComputador) {
    const auto endereco = Interno::ResolverNome(ANomeComputador);
    return endereco ? EscreverIP(*endereco) : std::u16string();
}

std::u16string TOryUtilsSistema::BuscarNomeComputadorPeloIP(std::u16string_view AIP) {
    const auto endereco = Interno::LerEnderecoIP(AIP);
    return endereco ? Interno::BuscarNomeDoEndereco(*endereco) : std::u16string();
}

std::vector<std::u16string> TOryUtilsSistema::BuscarListaIPLocalViaARP() {
    return Interno::BuscarListaIPLocalViaARP(Interno::ExecutorDoSistema());
}

std::u16string TOryUtilsSistema::BuscarIPLocalViaARP() {
    const std::vector<std::u16string> lista = BuscarListaIPLocalViaARP();
    return lista.empty() ? std::u16string() : lista.front();
}

std::u16string TOryUtilsSistema::BuscarEnderecoMac2(std::u16string_view AIP) {
    std::u16string ip = MinusculaDe(Aparar(AIP));
    if (ip == u"localhost" || ip == u"127.0.0.1") ip = BuscarIPLocal();
    const auto endereco = Interno::LerEnderecoIP(ip);
    const auto mac = endereco ? Interno::PerguntarEnderecoMac(*endereco) : std::nullopt;
    return mac ? EscreverMac(*mac) : std::u16string();
}

std::u16string TOryUtilsSistema::BuscarEnderecoMac(std::u16string_view AIP) {
    return Interno::BuscarEnderecoMac(
        AIP, {.IPLocal = BuscarIPLocal,
              .Rede = BuscarEnderecoMac2,
              .Adaptadores = ListarMacsDe,
              .TodosOsAdaptadores = [] { return ListarMacs(std::nullopt); },
              .ARP = [](std::u16string_view ARemoto) { return BuscarEnderecoMacViaARP(ARemoto); }});
}

std::u16string TOryUtilsSistema::BuscarEnderecoMacViaARP(std::u16string_view AIP) {
    return Interno::BuscarEnderecoMacViaARP(Interno::ExecutorDoSistema(), AIP, CosturaInterface().MostrarCursorOcupado);
}

std::u16string TOryUtilsSistema::ExtrairEnderecoMACComandoARP(std::u16string_view ATexto) {
    return Interno::ExtrairEnderecoMac(ATexto);
}

bool TOryUtilsSistema::EhIPLocal(std::u16string_view AIP, bool AConsultarARP) {
    return Interno::EhIPLocal(AIP, AConsultarARP,
                              {.NomeComputador = BuscarNomeComputador, .IPLocal = BuscarIPLocal, .ListaViaARP = [] {
                                   return BuscarListaIPLocalViaARP();
                               }});
}

}  // namespace OryUtils
