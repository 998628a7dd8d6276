#include "oryutils/forms/console/ExibicaoConsole.hpp"

#include "oryutils/forms/console/TextoDoTerminal.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

std::u16string EmUmaLinha(std::u16string_view ATexto) {
    std::u16string texto = Interno::ParaTerminal(ATexto, 0);
    std::ranges::replace(texto, u'\n', u' ');
    return texto;
}

}  // namespace

TExibicaoConsole::TExibicaoConsole(TFormulario& AFormulario, TConversa& AConversa)
    : FFormulario(AFormulario), FConversa(AConversa) {
    for (const auto& controle : FFormulario.GetControles())
        if (controle->GetTipo() == tcProgresso) FProgresso = static_cast<const TProgresso*>(controle.get());
    FFormulario.SetJanela(this);
    if (!FFormulario.GetTitulo().empty()) FConversa.Escrever(EmUmaLinha(FFormulario.GetTitulo()) + u"\n");
    Atualizar();
}

TExibicaoConsole::~TExibicaoConsole() {
    Atualizar();
    FFormulario.SetJanela(nullptr);
    if (FConversa.GetColunas() > 0 && !FLinha.empty()) FConversa.Escrever(u"\n");
}

void TExibicaoConsole::Atualizar() {
    if (!FProgresso) return;
    // A line that fills the terminal would go on in the next one, out of reach of "\r".
    if (const int colunas = FConversa.GetColunas(); colunas > 0)
        return Reescrever(BuscarLinha(static_cast<std::size_t>(colunas - 1)));
    const double percentual = FProgresso->GetPercentual();
    const int decimo = percentual < 0 ? -1 : static_cast<int>(percentual / 10);
    if (FTexto == FProgresso->GetTexto() && (FDecimo == decimo || decimo < 0)) return;
    FTexto = FProgresso->GetTexto();
    FDecimo = decimo;
    if (const std::u16string linha = BuscarLinha(std::u16string::npos); !linha.empty())
        FConversa.Escrever(linha + u"\n");
}

// Text and share in AMaximo characters: what does not fit is cut off the text.
std::u16string TExibicaoConsole::BuscarLinha(std::size_t AMaximo) const {
    constexpr std::u16string_view CCortado = u"...";
    std::u16string linha = EmUmaLinha(FProgresso->GetTexto());
    std::u16string parte;
    if (const double percentual = FProgresso->GetPercentual(); percentual >= 0)
        parte = (linha.empty() ? u"" : u" ") + InteiroParaTexto(static_cast<std::int64_t>(percentual)) + u"%";
    if (linha.size() + parte.size() > AMaximo) {
        const std::size_t tirados = parte.size() + CCortado.size();
        linha = linha.substr(0, AMaximo > tirados ? AMaximo - tirados : 0) + std::u16string(CCortado);
    }
    return linha + parte;
}

void TExibicaoConsole::Reescrever(std::u16string ALinha) {
    if (ALinha == FLinha) return;
    const std::size_t sobra = FLinha.size() > ALinha.size() ? FLinha.size() - ALinha.size() : 0;
    FConversa.Escrever(u"\r" + ALinha + std::u16string(sobra, u' '));
    FLinha = std::move(ALinha);
}

}  // namespace OryUtils
