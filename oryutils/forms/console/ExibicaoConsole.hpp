#pragma once

#include "oryutils/forms/Formulario.hpp"
#include "oryutils/forms/console/Conversa.hpp"

#include <cstddef>
#include <string>

namespace OryUtils {

/// A form that is shown while the program works: the text and the share of its bar (TProgresso). On a terminal that is
/// one line, written over and over; elsewhere, as in a log, a line for each new text and each tenth of the way.
class TExibicaoConsole final : private TJanela {
public:
    TExibicaoConsole(TFormulario& AFormulario, TConversa& AConversa);
    /// Writes what is new, and ends the line.
    ~TExibicaoConsole() override;
    TExibicaoConsole(const TExibicaoConsole&) = delete;
    TExibicaoConsole& operator=(const TExibicaoConsole&) = delete;

    /// Writes what is new.
    void Atualizar();

private:
    void Mudou(TControleFormulario&, TMudanca) override {}
    void MudouFormulario(TMudanca) override {}
    void ResultadoMudou() override {}

    std::u16string BuscarLinha(std::size_t AMaximo) const;
    void Reescrever(std::u16string ALinha);

    TFormulario& FFormulario;
    TConversa& FConversa;
    const TProgresso* FProgresso = nullptr;
    std::u16string FTexto, FLinha;  // written last
    int FDecimo = -1;
};

}  // namespace OryUtils
