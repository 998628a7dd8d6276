#pragma once

#include "oryutils/registry_numbers/interno/TipoDeDocumento.hpp"

/// Rules that the table language does not say, with the generators of their numbers.
namespace OryUtils::Interno {

using TUf = const TUnidadeFederativa*;

// Persons and places.
TMotivoRecusa ConferirCpfOuCnpj(const TDocumentoLido& ALido) noexcept;
std::string_view MascaraCpfOuCnpj(const TDocumentoLido& ALido) noexcept;
std::string GerarCpfOuCnpj(TSorteioDeDocumento& ASorteio, TUf);
TMotivoRecusa ConferirInscricao(const TDocumentoLido& ALido) noexcept;
std::string_view MascaraInscricao(const TDocumentoLido& ALido) noexcept;
std::string GerarInscricao(TSorteioDeDocumento& ASorteio, TUf AUf);
TMotivoRecusa ConferirCaepf(const TDocumentoLido& ALido) noexcept;
std::string_view MascaraCaepf(const TDocumentoLido& ALido) noexcept;
std::string GerarCaepf(TSorteioDeDocumento& ASorteio, TUf);
TMotivoRecusa ConferirCnhEmVigor(const TDocumentoLido& ALido) noexcept;
std::string GerarCnh(TSorteioDeDocumento& ASorteio, TUf);
TMotivoRecusa ConferirPlaca(const TDocumentoLido& ALido) noexcept;
std::string_view MascaraPlaca(const TDocumentoLido& ALido) noexcept;
std::string GerarPlaca(TSorteioDeDocumento& ASorteio, TUf);
TMotivoRecusa ConferirMunicipio(const TDocumentoLido& ALido) noexcept;
std::string GerarMunicipio(TSorteioDeDocumento& ASorteio, TUf);
TMotivoRecusa ConferirCep(const TDocumentoLido& ALido) noexcept;
std::string_view MascaraCep(const TDocumentoLido& ALido) noexcept;
std::string GerarCep(TSorteioDeDocumento& ASorteio, TUf AUf);

// Contact and Pix.
/// The number without the country's code.
std::string_view SemCodigoDoPais(std::string_view ATelefone) noexcept;
TMotivoRecusa ConferirTelefone(const TDocumentoLido& ALido) noexcept;
std::string_view MascaraTelefone(const TDocumentoLido& ALido) noexcept;
std::string GerarTelefone(TSorteioDeDocumento& ASorteio, TUf);
TMotivoRecusa ConferirEnderecoDeEmail(const TDocumentoLido& ALido) noexcept;
std::string GerarEmail(TSorteioDeDocumento& ASorteio, TUf);
TMotivoRecusa ConferirChavePix(const TDocumentoLido& ALido) noexcept;
std::string GerarChavePix(TSorteioDeDocumento& ASorteio, TUf);
TMotivoRecusa ConferirPixCopiaECola(const TDocumentoLido& ALido) noexcept;
std::string GerarPixCopiaECola(TSorteioDeDocumento& ASorteio, TUf);

// Money and processes.
/// The 44 digits of the bar code, from these or from the typed line of 47.
TNumeroLimpo CodigoDeBarrasDoBoleto(std::string_view ANumero) noexcept;
TMotivoRecusa ConferirBoleto(const TDocumentoLido& ALido) noexcept;
std::string_view MascaraBoleto(const TDocumentoLido& ALido) noexcept;
std::string GerarBoleto(TSorteioDeDocumento& ASorteio, TUf);
TNumeroLimpo CodigoDeBarrasDaArrecadacao(std::string_view ANumero) noexcept;
TMotivoRecusa ConferirArrecadacao(const TDocumentoLido& ALido) noexcept;
std::string_view MascaraArrecadacao(const TDocumentoLido& ALido) noexcept;
std::string GerarArrecadacao(TSorteioDeDocumento& ASorteio, TUf);
TMotivoRecusa ConferirCartao(const TDocumentoLido& ALido) noexcept;
std::string_view MascaraCartao(const TDocumentoLido& ALido) noexcept;
std::string GerarCartao(TSorteioDeDocumento& ASorteio, TUf);
TMotivoRecusa ConferirIban(const TDocumentoLido& ALido) noexcept;
std::string_view MascaraIban(const TDocumentoLido& ALido) noexcept;
std::string GerarIban(TSorteioDeDocumento& ASorteio, TUf);
TMotivoRecusa ConferirChaveFiscal(const TDocumentoLido& ALido) noexcept;
std::string_view MascaraChaveFiscal(const TDocumentoLido& ALido) noexcept;
std::string GerarChaveFiscal(TSorteioDeDocumento& ASorteio, TUf AUf);
TMotivoRecusa ConferirProcesso(const TDocumentoLido& ALido) noexcept;
std::string_view MascaraProcesso(const TDocumentoLido& ALido) noexcept;
std::string GerarProcesso(TSorteioDeDocumento& ASorteio, TUf);

// What documents tell.
using TFatos = std::vector<TFatoDocumento>;
void InterpretarCep(const TDocumentoLido& ALido, TFatos& AFatos);
void InterpretarTelefone(const TDocumentoLido& ALido, TFatos& AFatos);
void InterpretarChaveFiscal(const TDocumentoLido& ALido, TFatos& AFatos);
void InterpretarBoleto(const TDocumentoLido& ALido, TFatos& AFatos);
void InterpretarArrecadacao(const TDocumentoLido& ALido, TFatos& AFatos);
void InterpretarPixCopiaECola(const TDocumentoLido& ALido, TFatos& AFatos);
void InterpretarProcesso(const TDocumentoLido& ALido, TFatos& AFatos);
void InterpretarIban(const TDocumentoLido& ALido, TFatos& AFatos);

}  // namespace OryUtils::Interno
