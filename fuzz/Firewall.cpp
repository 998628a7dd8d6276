// Any text as what netsh answers; any name and program in its commands: "ok" alone confirms, a refusal is told whole,
// and no value becomes another argument.
#include "oryutils/system/interno/Firewall.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/readers/LinhaDeComando.hpp"
#include "oryutils/system/interno/SaidaDeComando.hpp"

#include "Comum.hpp"

using namespace OryUtils;
using namespace OryUtils::Interno;
using namespace OryUtils::Interno;

namespace {

std::size_t ContarPartes(std::u16string_view ALinha) { return SepararLinhaDeComando(ALinha).size(); }

// The slow way: every place of the answer, letter by letter.
bool TemOk(const std::u16string& AResposta) {
    for (std::size_t i = 0; i + 1 < AResposta.size(); ++i)
        if ((AResposta[i] == u'o' || AResposta[i] == u'O') && (AResposta[i + 1] == u'k' || AResposta[i + 1] == u'K'))
            return true;
    return false;
}

void Montar(TDialetoFirewall ADialeto, int APorta, const std::u16string& APrograma, const std::u16string& ANome) {
    Fuzz::Exigir(ContarPartes(MontarLiberacaoDePorta(ADialeto, tpTCP, APorta, ANome)) ==
                 ContarPartes(MontarLiberacaoDePorta(ADialeto, tpUDP, 1, u"n")));
    Fuzz::Exigir(ContarPartes(MontarExclusaoDePorta(ADialeto, tpTCP, APorta)) ==
                 ContarPartes(MontarExclusaoDePorta(ADialeto, tpUDP, 1)));
    Fuzz::Exigir(ContarPartes(MontarLiberacaoDePrograma(ADialeto, APrograma, ANome)) ==
                 ContarPartes(MontarLiberacaoDePrograma(ADialeto, u"p", u"n")));
    const auto exclusao = SepararLinhaDeComando(MontarExclusaoDePrograma(ADialeto, APrograma, ANome));
    Fuzz::Exigir(exclusao.size() == ContarPartes(MontarExclusaoDePrograma(ADialeto, u"p", u"n")));
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
