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

constexpr std::u16string_view CTabelaArp =
    u"\r\nInterface: 192.168.0.10 --- 0x3\r\n  Endereço IP           Endereço físico       Tipo\r\n"
    u"  192.168.0.1           00-1a-2b-3c-4d-5e     dinâmico\r\n"
    u"  192.168.0.255         ff-ff-ff-ff-ff-ff     estático\r\n";

TEST(ArpDoSistema, EnderecosDasLinhasDeInterface) {
    struct TCaso {
        TLista Linhas, Enderecos;
        const char* Porque;
    };
    const TCaso casos[] = {
        {{}, {}, "nothing printed"},
        {{u"", u"Interface: 192.168.0.10 --- 0x3", u"  192.168.0.1  00-1a-2b-3c-4d-5e  dynamic"},
         {u"192.168.0.10"},
         "the line of an interface, not those of its table"},
        {{u"Interface: 10.0.0.1 --- 0x1", u"Interface: 10.0.1.1 --- 0x2"}, {u"10.0.0.1", u"10.0.1.1"}, "two of them"},
        {{u"a:b", u" : c:d e "}, {u"b", u"c:d"}, "up to the next space only"},
        {{u":", u"a: ", u"a:\t"}, {}, "nothing behind the mark"},
        {{u"a:\tb\tc"}, {u"b\tc"}, "a tab is trimmed, and does not end the address"},
        {{u"No ARP Entries Found."}, {}, "an empty table"},
    };
    for (const TCaso& caso : casos)
        EXPECT_EQ(Interno::ListarEnderecosDaSaidaARP(caso.Linhas), caso.Enderecos) << caso.Porque;
}

// The rule as it is told, step by step.
std::u16string ExtrairDevagar(const std::u16string& ATexto) {
    const auto caractere = [](const std::u16string& ALinha, std::size_t APosicao) {
        return std::u16string(Aparar(APosicao < ALinha.size() ? ALinha.substr(APosicao, 1) : u""));
    };
    std::u16string padrao;
    for (std::size_t inicio = 0; inicio <= ATexto.size() && padrao.empty();) {
        const std::size_t fim = std::min(ATexto.find(u"\r\n", inicio), ATexto.size());
        const std::u16string linha = ATexto.substr(inicio, fim - inicio);
        for (std::size_t i = 0; i < linha.size() && padrao.empty(); ++i) {
            const std::u16string a = caractere(linha, i), b = caractere(linha, i + 1), c = caractere(linha, i + 2);
            if (!a.empty() && a != u"-" && !b.empty() && b != u"-" && c == u"-") padrao = a + b + c;
        }
        inicio = fim + 2;
    }
    if (padrao.empty()) return {};
    return MaiusculaDe(Aparar(ATexto.substr(ATexto.find(padrao), 17)));
}

TEST(ArpDoSistema, EnderecoMacNoTexto) {
    struct TCaso {
        std::u16string_view Texto, Mac;
        const char* Porque;
    };
    const TCaso casos[] = {
        {CTabelaArp, u"00-1A-2B-3C-4D-5E", "the first one, in upper case"},
        {u"", u"", "empty"},
        {u"192.168.0.1 -- 1-2 a- -ab", u"", "no two characters before a hyphen"},
        {u"ab-", u"AB-", "the text ends early"},
        {u"Data-base", u"TA-BASE", "any two characters, letters too"},
        {u"1 a-\r\n-b-\r\nxy-z", u"XY-Z", "a blank and a hyphen are no half; lines are parted"},
        {u"00-1a-2b-3c      12345", u"00-1A-2B-3C", "blanks at the end of the seventeen"},
        {u"00-1a\r\n2b-3c", u"00-1A\r\n2B-3C", "the seventeen go on over the line end"},
        {u"00-1a-2b-3c-4d-5e-6f", u"00-1A-2B-3C-4D-5E", "and no further"},
    };
    for (const TCaso& caso : casos)
        EXPECT_EQ(TOryUtilsSistema::ExtrairEnderecoMACComandoARP(caso.Texto), caso.Mac) << caso.Porque;

    Testes::TSorteio sorteio;
    for (int vez = 0; vez < 20000; ++vez) {
        const bool hostil = vez % 4 == 0;
        const std::u16string texto = sorteio.Texto(hostil ? Testes::CHostis : u"a1é-- \t\r\n\r\n", 0, 40);
        ASSERT_EQ(Interno::ExtrairEnderecoMac(texto), ExtrairDevagar(texto)) << sorteio.Semente() << " turn " << vez;
    }
    EXPECT_EQ(Interno::ExtrairEnderecoMac(std::u16string(1 << 20, u'-')), u"");
}

/// Answers commands one after the other and remembers them, with what was told of the cursor.
struct TTerminalDeTeste {
    std::vector<TLista> Respostas{};
    TLista Comandos{};

    Interno::TExecutorDeComando Executor() {
        return [this](std::u16string_view AComando, TLista& ASaida) {
            Comandos.emplace_back(AComando);
            if (Comandos.size() <= Respostas.size()) ASaida = Respostas[Comandos.size() - 1];
        };
    }
    std::u16string Buscar(std::u16string_view AIP) {
        Comandos.clear();
        return Interno::BuscarEnderecoMacViaARP(
            Executor(), AIP, [this](bool AOcupado) { Comandos.push_back(AOcupado ? u"busy" : u"ready"); });
    }
};

TEST(ArpDoSistema, UmPingQuandoATabelaNaoTemEntradas) {
    const TLista comLinha{u"Interface: 10.0.0.2 --- 0x1", u"  10.0.0.9   0a-0b-0c-0d-0e-0f   dynamic"};
    const TLista umaVez{u"arp -a 10.0.0.9"};
    const TLista comPing{u"arp -a 10.0.0.9", u"busy", u"ping 10.0.0.9 -i 1 -n 2", u"arp -a 10.0.0.9", u"ready"};
    struct TCaso {
        std::vector<TLista> Respostas;
        TLista Comandos;
        std::u16string_view Mac;
        const char* Porque;
    };
    const TCaso casos[] = {
        {{comLinha}, umaVez, u"0A-0B-0C-0D-0E-0F", "in the table at once"},
        {{{u"No ARP Entries Found."}, {}, {}, comLinha}, comPing, u"0A-0B-0C-0D-0E-0F", "there after the ping"},
        {{{u"Nenhuma entrada ARP encontrada."}}, comPing, u"", "not there either; the language does not matter"},
        {{{u"no entries"}}, umaVez, u"", "only a capital N tells it"},
        {{{u" No ARP Entries Found."}}, umaVez, u"", "and only as the first character"},
        {{{}}, umaVez, u"", "a command that printed nothing"},
    };
    for (const TCaso& caso : casos) {
        TTerminalDeTeste terminal{.Respostas = caso.Respostas};
        EXPECT_EQ(terminal.Buscar(u"10.0.0.9"), caso.Mac) << caso.Porque;
        EXPECT_EQ(terminal.Comandos, caso.Comandos) << caso.Porque;
    }
}

TEST(EnderecoMac, FontesEmOrdem) {
    struct TCaso {
        std::u16string_view IP;
        TLista Rede;  // the two answers
        TLista Adaptadores, Todos;
        std::u16string_view Mac;
        std::string Perguntas;  // n network, a adapters, t all adapters, p "arp"
        const char* Porque;
    };
    const TCaso casos[] = {
        {u"10.0.0.9", {u"aa", u"aa"}, {u"bb"}, {}, u"aa", "n10.0.0.9 n10.0.0.9 ", "two equal answers are enough"},
        {u"10.0.0.9", {u"", u""}, {u"bb"}, {}, u"", "n10.0.0.9 n10.0.0.9 ", "even when both are empty"},
        {u"10.0.0.9", {u"aa", u"ab"}, {u"bb"}, {}, u"bb", "n10.0.0.9 n10.0.0.9 a10.0.0.9 ", "the adapter decides"},
        {u"10.0.0.9", {u"aa", u"ab"}, {u"00-00"}, {}, u"aa", "n10.0.0.9 n10.0.0.9 a10.0.0.9 ", "zeros do not"},
        {u"10.0.0.9", {u"aa", u"ab"}, {u" ", u"bb"}, {}, u"aa", "n10.0.0.9 n10.0.0.9 a10.0.0.9 ", "only the first"},
        {u"10.0.0.9", {u"", u"ab"}, {}, {u"cc"}, u"pp", "n10.0.0.9 n10.0.0.9 a10.0.0.9 p10.0.0.9 ", "arp at the end"},
        {u"10.0.0.2", {u"", u"ab"}, {}, {u"cc"}, u"cc", "n10.0.0.2 n10.0.0.2 a10.0.0.2 t ", "own: all adapters"},
        {u"LocalHost", {u"", u"ab"}, {}, {}, u"", "n10.0.0.2 n10.0.0.2 a10.0.0.2 t ", "own: never arp"},
        {u"127.0.0.1", {u"aa", u"aa"}, {}, {}, u"aa", "n10.0.0.2 n10.0.0.2 ", "own: by its real address"},
        {u" 127.0.0.1", {u"aa", u"aa"}, {}, {}, u"aa", "n 127.0.0.1 n 127.0.0.1 ", "not trimmed here"},
    };
    for (const TCaso& caso : casos) {
        std::string perguntas;
        std::size_t vez = 0;
        const auto anotar = [&](char ATipo, std::u16string_view AIP) { perguntas += ATipo + ParaUtf8(AIP) + " "; };
        const std::u16string mac = Interno::BuscarEnderecoMac(caso.IP, {.IPLocal = [] { return u"10.0.0.2"; },
                                                                        .Rede =
                                                                            [&](std::u16string_view AIP) {
                                                                                anotar('n', AIP);
                                                                                return caso.Rede[vez++];
                                                                            },
                                                                        .Adaptadores =
                                                                            [&](std::u16string_view AIP) {
                                                                                anotar('a', AIP);
                                                                                return caso.Adaptadores;
                                                                            },
                                                                        .TodosOsAdaptadores =
                                                                            [&] {
                                                                                anotar('t', u"");
                                                                                return caso.Todos;
                                                                            },
                                                                        .ARP =
                                                                            [&](std::u16string_view AIP) {
                                                                                anotar('p', AIP);
                                                                                return std::u16string(u"pp");
                                                                            }});
        EXPECT_EQ(mac, caso.Mac) << caso.Porque;
        EXPECT_EQ(perguntas, caso.Perguntas) << caso.Porque;
    }
}

TEST(EnderecoMac, IPLocal) {
    struct TCaso {
        std::u16string_view IP;
        bool ConsultarARP, Local;
        const char* Porque;
    };
    const TCaso casos[] = {
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
    for (const TCaso& caso : casos) {
        bool consultou = false;
        const Interno::TFontesDeIPLocal fontes{.NomeComputador = [] { return u"PC1"; },
                                               .IPLocal = [] { return u"10.0.0.2"; },
                                               .ListaViaARP =
                                                   [&] {
                                                       consultou = true;
                                                       return TLista{u"fe80::1", u"10.0.1.2"};
                                                   }};
        EXPECT_EQ(Interno::EhIPLocal(caso.IP, caso.ConsultarARP, fontes), caso.Local) << caso.Porque;
        EXPECT_EQ(consultou, caso.ConsultarARP) << caso.Porque;
    }
}

TEST(ArpDoSistema, ProgramasDeVerdade) {
    Testes::TProgramasFalsos programas;
    programas.Por("ping", {});
    programas.Por("arp", {"\nInterface: 10.0.0.2 --- 0x1\n  10.0.0.9   0a-0b-0c-0d-0e-0f   dynamic\n",
                          "Interface: 10.0.0.3 --- 0x1\n"});
    EXPECT_EQ(TOryUtilsSistema::BuscarListaIPLocalViaARP(), TLista{u"10.0.0.2"});
    EXPECT_EQ(TOryUtilsSistema::BuscarIPLocalViaARP(), u"10.0.0.3");
    EXPECT_EQ(programas.LerChamadas(), "arp|-a\narp|-a\n");
    programas.Por("arp", {"No ARP Entries Found.\n", "  10.0.0.7   aA-bB-cc-dd-ee-01   dynamic\n"});
    EXPECT_EQ(BuscarEnderecoMacViaARP(u"10.0.0.7"), u"AA-BB-CC-DD-EE-01");
    EXPECT_EQ(programas.LerChamadas(), "arp|-a|10.0.0.7\nping|10.0.0.7|-i|1|-n|2\narp|-a|10.0.0.7\n");
    programas.Por("arp", {"nO entries\n"});
    EXPECT_EQ(BuscarEnderecoMacViaARP(u"10.0.0.8"), u"");
    EXPECT_EQ(programas.LerChamadas(), "arp|-a|10.0.0.8\n");
}

}  // namespace
