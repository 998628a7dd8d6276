// What is decided from the answers of "arp" and of the network, with sources that answer as told.
#include "oryutils/system/interno/RegrasDeRede.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "system/ProgramasFalsos.hpp"
#include "text/Apoio.hpp"

using namespace OryUtils;
using Testes::TLista;

namespace {

TEST(ArpDoSistema, EnderecosDasLinhasDeInterface) {
    const std::tuple<std::u16string_view, TLista, const char*> casos[] = {
        {u"", {}, "nothing printed"},
        {u"\r\nInterface: 10.0.0.9 --- 0x3\r\n  10.0.0.1  00-1a-2b-3c-4d-5e  dynamic", {u"10.0.0.9"}, "not its table"},
        {u"Interface: 10.0.0.1 --- 0x1\nInterface: 10.0.1.1 --- 0x2\n", {u"10.0.0.1", u"10.0.1.1"}, "two of them"},
        {u"a:b\n : c:d e ", {u"b", u"c:d"}, "up to the next space only"},
        {u":\na: \na:\t", {}, "nothing behind the mark"},
        {u"a:\tb\tc", {u"b\tc"}, "a tab is trimmed, and does not end the address"},
        {u"No ARP Entries Found.", {}, "an empty table"},
    };
    for (const auto& [saida, enderecos, porque] : casos)
        EXPECT_EQ(Interno::ListarEnderecosDaSaidaARP(saida), enderecos) << porque;
}

// The rule as it is told: the first two characters before a "-", which are neither blank nor "-", begin the seventeen
// characters of the address, over the end of the line too.
std::u16string ExtrairDevagar(const std::u16string& ATexto) {
    for (std::size_t inicio = 0; inicio + 3 <= ATexto.size(); ++inicio) {
        const std::u16string par = ATexto.substr(inicio, 2);
        const bool cheio = par.find(u'-') == par.npos && std::u16string(Aparar(par)) == par;
        if (cheio && ATexto[inicio + 2] == u'-') return MaiusculaDe(Aparar(ATexto.substr(inicio, 17)));
    }
    return {};
}

TEST(ArpDoSistema, EnderecoMacNoTexto) {
    Testes::TSorteio sorteio;
    for (int vez = 0; vez < 20000; ++vez) {
        const bool hostil = vez % 4 == 0;
        const std::u16string texto = sorteio.Texto(hostil ? Testes::CHostis : u"a1é-- \t\r\n\r\n", 0, 40);
        ASSERT_EQ(TOryUtilsSistema::ExtrairEnderecoMACComandoARP(texto), ExtrairDevagar(texto)) << sorteio.Semente();
    }
    EXPECT_EQ(Interno::ExtrairEnderecoMac(std::u16string(1 << 20, u'-')), u"");
}

TEST(ArpDoSistema, UmPingQuandoATabelaNaoTemEntradas) {
    Testes::TProgramasFalsos programas;
    programas.Por("ping", {});
    const std::string comLinha = "Interface: 10.0.0.2 --- 0x1\n  10.0.0.9   0a-0b-0c-0d-0e-0f   dynamic\n";
    const std::string umaVez = "arp|-a|10.0.0.9\n";
    const std::string comPing = umaVez + "busy\nping|10.0.0.9|-i|1|-n|2\n" + umaVez + "ready\n";
    const std::tuple<std::vector<std::string>, std::string, std::u16string_view, const char*> casos[] = {
        {{comLinha}, umaVez, u"0A-0B-0C-0D-0E-0F", "in the table at once"},
        {{"No ARP Entries Found.", comLinha}, comPing, u"0A-0B-0C-0D-0E-0F", "there after the ping"},
        {{"Nenhuma entrada ARP encontrada."}, comPing, u"", "not there either; the language does not matter"},
        {{"no entries"}, umaVez, u"", "only a capital N tells it"},
        {{"> No ARP Entries Found."}, umaVez, u"", "and only as the first character"},
        {{}, umaVez, u"", "a command that printed nothing"},
    };
    for (const auto& [respostas, chamadas, mac, porque] : casos) {
        programas.Por("arp", respostas);
        const auto ocupado = [&](bool AOcupado) { programas.Anotar(AOcupado ? "busy\n" : "ready\n"); };
        EXPECT_EQ(Interno::BuscarEnderecoMacViaARP(Interno::ExecutorDoSistema(), u"10.0.0.9", ocupado), mac) << porque;
        EXPECT_EQ(programas.LerChamadas(), chamadas) << porque;
    }
    programas.Por("arp", {comLinha, "Interface: 10.0.0.3 --- 0x1\n", "No ARP Entries Found.\n", comLinha});
    EXPECT_EQ(TOryUtilsSistema::BuscarListaIPLocalViaARP(), TLista{u"10.0.0.2"});
    EXPECT_EQ(TOryUtilsSistema::BuscarIPLocalViaARP(), u"10.0.0.3");
    EXPECT_EQ(BuscarEnderecoMacViaARP(u"10.0.0.9"), u"0A-0B-0C-0D-0E-0F");
    EXPECT_EQ(programas.LerChamadas(), "arp|-a\narp|-a\n" + umaVez + "ping|10.0.0.9|-i|1|-n|2\n" + umaVez);
}

TEST(EnderecoMac, FontesEmOrdem) {
    // The address, the two answers of the network, those of the adapters and of all adapters, what comes out, and who
    // was asked: n network, a adapters, t all adapters, p "arp".
    const std::tuple<std::u16string_view, TLista, TLista, TLista, std::u16string_view, std::string, const char*>
        casos[] = {
            {u"10.0.0.9", {u"aa", u"aa"}, {u"bb"}, {}, u"aa", "n10.0.0.9 n10.0.0.9 ", "two equal answers are enough"},
            {u"10.0.0.9", {u"", u""}, {u"bb"}, {}, u"", "n10.0.0.9 n10.0.0.9 ", "even when both are empty"},
            {u"10.0.0.9", {u"aa", u"ab"}, {u"bb"}, {}, u"bb", "n10.0.0.9 n10.0.0.9 a10.0.0.9 ", "the adapter decides"},
            {u"10.0.0.9", {u"aa", u"ab"}, {u"00-00"}, {}, u"aa", "n10.0.0.9 n10.0.0.9 a10.0.0.9 ", "zeros do not"},
            {u"10.0.0.9", {u"aa", u"ab"}, {u" ", u"bb"}, {}, u"aa", "n10.0.0.9 n10.0.0.9 a10.0.0.9 ", "only the first"},
            {u"10.0.0.9", {u"", u"ab"}, {}, {u"cc"}, u"pp", "n10.0.0.9 n10.0.0.9 a10.0.0.9 p10.0.0.9 ", "arp at last"},
            {u"10.0.0.2", {u"", u"ab"}, {}, {u"cc"}, u"cc", "n10.0.0.2 n10.0.0.2 a10.0.0.2 t ", "own: all adapters"},
            {u"10.0.0.2", {u"", u"ab"}, {u"bb"}, {u"cc"}, u"bb", "n10.0.0.2 n10.0.0.2 a10.0.0.2 ", "own: its adapter"},
            {u"LocalHost", {u"", u"ab"}, {}, {}, u"", "n10.0.0.2 n10.0.0.2 a10.0.0.2 t ", "own: never arp"},
            {u"127.0.0.1", {u"aa", u"aa"}, {}, {}, u"aa", "n10.0.0.2 n10.0.0.2 ", "own: by its real address"},
            {u" 127.0.0.1", {u"aa", u"aa"}, {}, {}, u"aa", "n 127.0.0.1 n 127.0.0.1 ", "not trimmed here"},
        };
    for (const auto& [ip, rede, adaptadores, todos, esperado, esperadas, porque] : casos) {
        std::string perguntas;
        std::size_t vez = 0;
        const auto anotar = [&](char AFonte, std::u16string_view AIP, const auto& AResposta) {
            perguntas += AFonte + ParaUtf8(AIP) + " ";
            return AResposta;
        };
        const Interno::TFontesDeEnderecoMac fontes{
            .IPLocal = [] { return u"10.0.0.2"; },
            .Rede = [&, &respostas = rede](auto AIP) { return anotar('n', AIP, respostas[vez++]); },
            .Adaptadores = [&, &lista = adaptadores](auto AIP) { return anotar('a', AIP, lista); },
            .TodosOsAdaptadores = [&, &lista = todos] { return anotar('t', u"", lista); },
            .ARP = [&](auto AIP) { return anotar('p', AIP, std::u16string(u"pp")); },
        };
        EXPECT_EQ(Interno::BuscarEnderecoMac(ip, fontes), esperado) << porque;
        EXPECT_EQ(perguntas, esperadas) << porque;
    }
}

TEST(EnderecoMac, IPLocal) {
    // The address, whether "arp" may be asked, whether it is one of this machine.
    const std::tuple<std::u16string_view, bool, bool, const char*> casos[] = {
        {u"127.0.0.1", false, true, "loopback"},
        {u"LOCALHOST", false, true, "its name in any case"},
        {u"pc1", false, true, "the computer's name in any case"},
        {u"10.0.0.2", false, true, "the address"},
        {u"10.0.1.2", false, false, "another address of the machine, not asked for"},
        {u"10.0.1.2", true, true, "another address of the machine"},
        {u"FE80", true, true, "a part of it in any case"},
        {u"10.0.0.9", true, false, "another machine"},
        {u" 10.0.0.2", false, false, "not trimmed"},
        {u"", true, false, "nothing"},
    };
    for (const auto& [ip, consultar, local, porque] : casos) {
        bool consultou = false;
        const auto perguntar = [&] { return consultou = true, TLista{u"fe80::1", u"10.0.1.2"}; };
        const Interno::TFontesDeIPLocal fontes{[] { return u"PC1"; }, [] { return u"10.0.0.2"; }, perguntar};
        EXPECT_EQ(Interno::EhIPLocal(ip, consultar, fontes), local) << porque;
        EXPECT_EQ(consultou, consultar) << porque;
    }
}

}  // namespace
