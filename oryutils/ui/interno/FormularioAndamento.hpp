#pragma once

#include "oryutils/forms/Formulario.hpp"
#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/ui/UnOryUtilsDialogsIOP.hpp"
#include "oryutils/ui/interno/Disposicao.hpp"
#include "oryutils/ui/interno/Ritmo.hpp"

#include <memory>
#include <string>
#include <string_view>

namespace OryUtils {

/// The form of TOryUtilsDialogsAndamento: label "Message", bar "Andamento", button "Cancel".
class TFormularioAndamento final : public TFormulario {
public:
    /// Shows it. Raises what ExigirToolkit raises, and Exception for a toolkit that shows no form without running it.
    explicit TFormularioAndamento(const TOryUtilsDialogsAndamentoIOP& AParametros);
    ~TFormularioAndamento() override;

    /// What the next drawing shows.
    void Anotar(double APercentual) noexcept { FPercentual = APercentual; }
    void Anotar(std::u16string_view ATexto) { FTexto = ATexto; }
    /// Draws what was noted and lets the messages through, when it is time again.
    void Atualizar();
    bool FoiCancelado() const noexcept { return FCancelar && GetModalResult() != mrNone; }

    void AoMudarTela(int AAntes, int AAgora) override;

private:
    void MostrarTexto();

    TPartesDoDialogo FPartes;
    TBotao* FCancelar = nullptr;
    TToolkit& FToolkit;
    std::u16string FTexto;
    double FPercentual = -1;
    TRitmo FRitmo;
    bool FAtualizando = false;
    std::shared_ptr<void> FExibicao;  // last: it goes first
};

/// ATexto with a line break inside of each word that is wider than ALargura, where the line is full.
std::u16string QuebrarPalavrasLongas(const TToolkit& AToolkit, std::u16string_view ATexto, int ALargura);

}  // namespace OryUtils
