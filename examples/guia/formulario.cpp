// A customer form: the save button checks every field and stops at the first bad one.
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include "guia/Escrever.hpp"

#include <string>

using namespace OryUtils;

// [caixa]
class TCaixa : public TWinControl {
public:
    explicit TCaixa(std::u16string_view ANome) : FNome(ANome) {}
    bool PodeReceberFoco() const override { return true; }
    void ReceberFoco() override { Escrever(u"[foco em " + FNome + u"]"); }

    std::u16string Texto{};

private:
    std::u16string FNome;
};
// [caixa]

// [formulario]
struct TFormularioCliente {
    TCaixa Nome{u"Nome"}, CNPJ{u"CNPJ"}, UF{u"UF"}, IE{u"Inscrição estadual"}, Email{u"E-mail"};

    void Conferir(const TObjeto* ASender) {
        using V = TOryUtilsValidacoes;
        V::ValidarString(ASender, &Nome, Nome.Texto, u"Informe o nome do cliente.");
        V::ValidouDocumento(ASender, &CNPJ, CNPJ.Texto, tiCNPJ);
        V::ValidarIE(ASender, &IE, TOryUtilsStrings::LimparTexto(IE.Texto), UF.Texto,
                     u"Inscrição estadual inválida para a UF.");
        V::ValidarEmail(ASender, &Email, Email.Texto, u"E-mail inválido.");
    }

    void AoClicarEmSalvar() {
        try {
            Conferir(nullptr);
            Escrever(u"Cliente gravado.");
        } catch (const EAbort&) {
            Escrever(u"(nada foi gravado)");
        }
    }
};
// [formulario]

void TirarDuvidas() {
    // [vereditos]
    const bool cpf = ValidouCnpjCpf(tiCPF, u"529.982.247-25");
    const bool cnpjComLetras = ValidouCnpjAlfanumerico(u"12.ABC.345/01DE-35");
    const bool isento = ValidouIE(u"ISENTO", u"SC");
    const bool telefoneNoEmail = TOryUtilsValidacoes::ValidouEmail(u"(51) 3333-4444");
    // [vereditos]
    Escrever(cpf && cnpjComLetras && isento && !telefoneNoEmail ? u"Vereditos: certos." : u"Vereditos: errados!");
    // [formatos]
    const std::u16string cnpj = TOryUtilsStrings::FormatarInscricaoFederal(tiCNPJ, u"11222333000181");
    // [formatos]
    Escrever(cnpj);
}

int main() {
    // [avisos]
    CosturaInterface().Alerta = [](std::u16string_view AMensagem) { Escrever(u"Aviso: " + std::u16string(AMensagem)); };
    // [avisos]

    // [uso]
    TFormularioCliente tela;
    tela.Nome.Texto = u"Comercial Modelo Ltda.";
    tela.CNPJ.Texto = u"11.222.333/0001-80";
    tela.UF.Texto = u"RS";
    tela.IE.Texto = u"224/3658792";
    tela.Email.Texto = u"compras@modelo";
    tela.AoClicarEmSalvar();

    tela.CNPJ.Texto = u"11.222.333/0001-81";
    tela.AoClicarEmSalvar();

    tela.Email.Texto = u"compras@modelo.ind.br";
    tela.AoClicarEmSalvar();
    // [uso]
    TirarDuvidas();
}
