// Any text as what netsh answers; any name and program in its commands: "ok" alone confirms, a refusal is told whole,
// and no value becomes another argument.
#include "oryutils/system/interno/Firewall.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/readers/LinhaDeComando.hpp"
#include "oryutils/system/interno/SaidaDeComando.hpp"

#include "Comum.hpp"

using namespace OryUtils;
using namespace OryUtils::Interno;

namespace {

/// The arguments of a command with values as they come in: as many as with harmless ones.
std::vector<std::u16string> Partes(std::u16string_view ALinha, std::u16string_view AInofensiva) {
    auto partes = SepararLinhaDeComando(ALinha);
    Fuzz::Exigir(partes.size() == SepararLinhaDeComando(AInofensiva).size());
    return partes;
}

// The slow way: every place of the answer, letter by letter.
bool TemOk(const std::u16string& AResposta) {
    for (std::size_t i = 0; i + 1 < AResposta.size(); ++i)
        if ((AResposta[i] == u'o' || AResposta[i] == u'O') && (AResposta[i + 1] == u'k' || AResposta[i + 1] == u'K'))
            return true;
    return false;
}

void Montar(TDialetoFirewall ADialeto, int APorta, const std::u16string& APrograma, const std::u16string& ANome) {
    Partes(MontarLiberacaoDePorta(ADialeto, tpTCP, APorta, ANome), MontarLiberacaoDePorta(ADialeto, tpUDP, 1, u"n"));
    Partes(MontarExclusaoDePorta(ADialeto, tpTCP, APorta), MontarExclusaoDePorta(ADialeto, tpUDP, 1));
    Partes(MontarLiberacaoDePrograma(ADialeto, APrograma, ANome), MontarLiberacaoDePrograma(ADialeto, u"p", u"n"));
    const auto exclusao =
        Partes(MontarExclusaoDePrograma(ADialeto, APrograma, ANome), MontarExclusaoDePrograma(ADialeto, u"p", u"n"));
    Fuzz::Exigir(exclusao.back() == (ADialeto == dfAvancado ? u"program=" + APrograma : APrograma));
}

}  // namespace

void Fuzz::Provar(TEntrada AEntrada) {
    const auto dialeto = AEntrada.Byte() % 2 ? dfAvancado : dfAntigo;
    const auto porta = AEntrada.Valor<std::int32_t>();
    const std::u16string programa = AEntrada.Texto(40), nome = AEntrada.Texto(40);
    Montar(dialeto, porta, programa, nome);

    // The answer reaches the library in bytes.
    const std::string bytes = AEntrada.Bytes();
    const TExecutorDeComando netsh = [&](std::u16string_view, std::vector<std::u16string>& ASaida) {
        ASaida = LinhasDaSaidaDeComando(bytes);
    };
    const std::u16string resposta = JuntarLinhas(LinhasDaSaidaDeComando(bytes));
    for (const TResultStatus& r :
         {LiberouPorta(netsh, dialeto, tpTCP, porta, nome), ExcluiuPorta(netsh, dialeto, tpUDP, porta),
          LiberouPrograma(netsh, dialeto, programa, nome), ExcluiuPrograma(netsh, dialeto, programa, nome)}) {
        Exigir(r.Status == TemOk(resposta));
        Exigir(r.Status ? r.Mensagem.empty() : r.Mensagem.ends_with(resposta));
    }
}
