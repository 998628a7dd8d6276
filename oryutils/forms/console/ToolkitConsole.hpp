#pragma once

#include "oryutils/forms/Toolkit.hpp"

namespace OryUtils {

/// For batches and remote shells: a message is a line on stderr, "Aviso: CNPJ inválido. Verifique.".
class ORY_API TToolkitConsole final : public TToolkit {
public:
    const char* GetNome() const noexcept override { return "console"; }
    bool EhThreadDaInterface() const override { return true; }
    int ExecutarModal(TFormulario& AFormulario) override;
    void ProcessarMensagens() override {}
    TTamanho MedirTexto(std::u16string_view ATexto, int ALarguraMaxima) const override;
    int GetTamanhoFonte() const override { return 8; }
    int GetPixelsPorPolegada() const override { return 96; }
    TRetangulo GetAreaDeTrabalho() const override { return {0, 0, 1024, 768}; }
    std::uintptr_t LigarTemporizador(int AMilissegundos, std::function<void()> AAcao) override;
    void DesligarTemporizador(std::uintptr_t ATemporizador) override;
    std::optional<std::u16string> EscolherArquivo(std::u16string_view APastaInicial,
                                                  const std::vector<TFiltroArquivo>& AFiltros) override;
    std::optional<std::u16string> EscolherPasta(std::u16string_view ATitulo,
                                                std::u16string_view APastaInicial) override;
    void SetCursor(TCursorTela) override {}
    bool EstahPressionada(std::uint16_t) const override { return false; }
    void Bipar() override {}
    void CopiarParaAreaDeTransferencia(std::u16string_view) override {}
};

}  // namespace OryUtils
