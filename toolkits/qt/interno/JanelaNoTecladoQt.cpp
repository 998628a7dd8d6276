// What a key does to the window of a form.
#include "toolkits/qt/interno/GuardaQt.hpp"
#include "toolkits/qt/interno/JanelaQt.hpp"
#include "toolkits/qt/interno/NavegacaoQt.hpp"
#include "toolkits/qt/interno/TeclasQt.hpp"

namespace OryUtils {

bool TJanelaQt::TratarTeclaQt(const QKeyEvent& AEvento) {
    if (FTeclaTratada == &AEvento) return false;
    FTeclaTratada = &AEvento;
    TTecla tecla = DeEventoQt(AEvento);
    tecla.ComSelecao = HaTextoSelecionado(*this);
    bool tratada = tecla.Codigo != 0;  // also when a handler raised
    if (tratada) Avisar([&] { tratada = FFormulario.TratarTecla(tecla); });
    return tratada || CopiarDoRotulo(*this, AEvento) || Navegar(AEvento);
}

bool TJanelaQt::Navegar(const QKeyEvent& AEvento) const {
    const auto focado = FControles.find(focusWidget());
    const TControleFormulario* controle = focado == FControles.end() ? nullptr : focado->second;
    // These take letters and arrows themselves.
    const bool texto = controle && (controle->GetTipo() == tcCaixaEdicao || controle->GetTipo() == tcMemorando);
    if (texto || (controle && controle->GetTipo() == tcListaEscolha)) return false;
    return PressionarLetra(BuscarBotoes(), AEvento) || (controle && AndarComSetas(BuscarVizinhos(*controle), AEvento));
}

// In the order of Tab.
QList<QAbstractButton*> TJanelaQt::BuscarBotoes() const {
    QList<QAbstractButton*> botoes;
    for (const auto& controle : FFormulario.GetControles()) botoes += BuscarBotoesDe(*controle, Buscar(*controle));
    return botoes;
}

// The arrows walk inside a run of controls of one kind; each group of options is a run of its own.
QList<QAbstractButton*> TJanelaQt::BuscarVizinhos(const TControleFormulario& AControle) const {
    QList<QAbstractButton*> vizinhos;
    bool passou = false;
    for (const auto& controle : FFormulario.GetControles()) {
        const bool mesmo = controle.get() == &AControle;
        if (controle->GetTipo() != AControle.GetTipo() || (AControle.GetTipo() == tcGrupoOpcoes && !mesmo)) {
            if (passou) break;
            vizinhos.clear();
            continue;
        }
        passou = passou || mesmo;
        vizinhos += BuscarBotoesDe(*controle, Buscar(*controle));
    }
    return vizinhos;
}

}  // namespace OryUtils
