#include "operaciones/Catalogos.h"

#include <cstdlib>
#include <type_traits>

#include "app/sesion.h"
#include "db/Catalogo.h"
#include "operaciones/Colonia_Window.h"
#include "operaciones/CuentaContable_Window.h"
#include "operaciones/Operaciones.h"

namespace {

// The columns of a record. Two that only read have none to show but what they answer.

template <class R, class Accion>
void CadaColumna(const R& registro, Accion accion) {
  registro.CadaColumna(accion);
}
template <class Accion>
void CadaColumna(const cSocioCaja& socio, Accion accion) {
  accion(socio.getSocioID());
  accion(socio.getClaveSocioInt());
  accion(socio.getPaterno());
  accion(socio.getMaterno());
  accion(socio.getNombre());
  accion(socio.getEstatus());
}
template <class Accion>
void CadaColumna(const cTipoTasaInteres& serie, Accion accion) {
  accion(serie.getTipotasa());
  accion(serie.getDescripcion());
}

template <class Valor>
constexpr Tabla::Tipo TipoDe() {
  if (std::is_arithmetic_v<Valor>) return Tabla::Numero;
  return std::is_same_v<Valor, date> ? Tabla::Fecha : Tabla::Texto;
}

/// The rows of a container, which is a static map of the cache or, by the pointer to its member, a list.
template <auto donde>
auto& Filas() {
  if constexpr (std::is_member_object_pointer_v<decltype(donde)>) {
    return catalogo.*donde;
  } else {
    return *donde;
  }
}

template <class T>
const T& DeLaFila(const std::pair<const int, T>& fila) {
  return fila.second;
}
template <class T>
const T& DeLaFila(const T& fila) {
  return fila;
}

template <class T>
T DeFila(const std::map<int, T>&);
template <class T>
T DeFila(const lista<T>&);

std::vector<std::string> Partes(const char* titulos) {
  std::vector<std::string> partes(1);
  for (; *titulos != '\0'; ++titulos) {
    if (*titulos == '|') {
      partes.emplace_back();
    } else {
      partes.back() += *titulos;
    }
  }
  return partes;
}

template <auto donde>
Tabla Hecha(const char* titulos) {
  using R = decltype(DeFila(Filas<donde>()));
  const std::vector<std::string> partes = Partes(titulos);
  std::vector<Tabla::Columna> columnas;
  size_t cual = 0;
  const R blanco{};
  CadaColumna(blanco, [&](const auto& valor) {
    const std::string& titulo = partes.at(cual++);
    if (!titulo.empty()) columnas.push_back({titulo, TipoDe<std::decay_t<decltype(valor)>>()});
  });
  Tabla tabla(std::move(columnas));
  for (const auto& fila : Filas<donde>()) {
    cual = 0;
    CadaColumna(DeLaFila<R>(fila), [&](const auto& valor) {
      if (!partes[cual++].empty()) tabla.Agrega(valor);
    });
  }
  return tabla;
}

template <void (Catalogo::*carga)()>
void Relee() {
  (catalogo.*carga)();
}

// A row in the form of its catalogue.

/// The place of `renglon` in the cache as the form has read it: that of the same texts, or of the same first
/// one when the row was changed meanwhile; -1 when it is gone.
int Lugar(const Tabla& tabla, const std::vector<std::string>& renglon) {
  int parecida = -1;
  for (int fila = 0; fila < tabla.Filas(); ++fila) {
    int iguales = 0;
    while (iguales < tabla.NumColumnas() && renglon[iguales] == tabla.Celda(fila, iguales)) ++iguales;
    if (iguales == tabla.NumColumnas()) return fila;
    if (iguales > 0 && parecida < 0) parecida = fila;
  }
  return parecida;
}

template <class Clase>
Clase* Primera(const FXWindow* padre) {
  for (FXWindow* hija = padre->getFirst(); hija != nullptr; hija = hija->getNext()) {
    if (auto* suya = dynamic_cast<Clase*>(hija)) return suya;
    if (auto* dentro = Primera<Clase>(hija)) return dentro;
  }
  return nullptr;
}

/// A row of a list.
void Elige(FXList* lista, int lugar) {
  lista->setCurrentItem(lugar);
  lista->makeItemVisible(lugar);
  lista->getTarget()->handle(lista, FXSEL(SEL_COMMAND, lista->getSelector()), nullptr);
}

/// A user, whose list folds: the login stands behind the name.
void Elige(FXFoldingList* arbol, const char* login) {
  for (FXFoldingItem* uno = arbol->getFirstItem(); uno != nullptr; uno = uno->getBelow()) {
    if (uno->getText().after('\t') != login) continue;
    arbol->setCurrentItem(uno);
    arbol->makeItemVisible(uno);
    arbol->getTarget()->handle(arbol, FXSEL(SEL_COMMAND, arbol->getSelector()), uno);
    return;
  }
}

template <auto donde>
constexpr auto Datos = Hecha<donde>;

using C = Catalogo;
using O = Operaciones;

const std::vector<Catalogado> catalogados = {
    {"Activos fijos",
     "Número|Tipo|Clave|Descripción|Valor|% vida útil|Valor de mercado|Localización|No. de serie|Inicio "
     "contable|"
     "Tasa contable|Acumulada contable|Método contable|Inicio fiscal|Deducción inmediata|Tasa fiscal|"
     "Acumulada fiscal|Método fiscal|Máximo fiscal|Monto original|Moneda|Departamento",
     Datos<&C::Activos>, Relee<&C::LoadActivos>, O::ID_ACTIVOS, "Activo_Window"},
    {"Asesores", "Número|Nombre", Datos<&C::Asesores>, Relee<&C::LoadAsesor>, O::ID_ASESORES,
     "Asesor_Window"},
    {"Ciudades", "Número|Estado|Clave|Nombre", Datos<&C::CiudadesMex>, Relee<&C::LoadCiudadesMex>,
     O::ID_CIUDADES, "CiudadMex_Window"},
    {"Clasificación de créditos", "Número|Descripción", Datos<&C::ClasificacionCreditos>,
     Relee<&C::LoadClasificacionCreditos>, O::ID_CLASIFICACIONES, "ClasificacionCredito_Window"},
    {"Colonias", "Número|Ciudad|Nombre|Código postal|Tipo", Datos<&C::Colonias>, Relee<&C::LoadColonias>,
     O::ID_COLONIAS, "Colonia_Window"},
    {"Conceptos de scoring", "Número|Concepto", Datos<&C::ConceptosScoring>, Relee<&C::LoadConceptosScoring>,
     O::ID_CONCEPTOSCORING, "ConceptoScoring_Window"},
    {"Cuentas bancarias",
     "Cuenta|Cuenta contable|Banco|Inicio|Saldo inicial|Saldo actual|Saldo pendiente|Serie|Cheque",
     Datos<&C::Bancos>, Relee<&C::LoadBancos>, O::ID_BANCOS, "Banco_Window"},
    {"Cuentas contables",
     "Cuenta|Acumula en|Rubro|Nombre|Tipo|Estado|Fecha del estado|Último movimiento|Naturaleza|Dígito "
     "agrupador|"
     "Saldo inicial|Cargos|Abonos",
     Datos<&C::Catalogo_Ctas>, Relee<&C::LoadCuentas>, O::ID_CUENTAS, "CuentaContable_Window"},
    {"Días inhábiles", "Fecha", Datos<&C::Inabiles>, Relee<&C::LoadInabiles>, O::ID_INABILES,
     "Inabil_Window"},
    {"Estados de la república", "Número|Clave|Nombre", Datos<&C::EstadosMex>, Relee<&C::LoadEstadosMex>,
     O::ID_ESTADOS, "EstadoMex_Window"},
    {"Estados del crédito", "Clave|Descripción", Datos<&C::Estados_Credito>, Relee<&C::LoadEstadosCredito>,
     O::ID_ESTADOSCREDITO, "Estados_Credito_Window"},
    {"Finalidades", "Clave|Descripción", Datos<&C::Finalidades>, Relee<&C::LoadFinalidades>,
     O::ID_FINALIDADES, "Finalidades_Window"},
    {"Fórmulas", "Número|Descripción|Saldo insoluto|Días|Tasa normal|Tasa moratoria|Fórmula|",
     Datos<&C::Calculos>, Relee<&C::LoadCalculos>, O::ID_CALCULOS, "Calculo_Window"},
    {"Grupos", "Número|Grupo", Datos<&C::Grupos>, Relee<&C::LoadGrupos>, O::ID_GRUPOS_DE_SOCIOS,
     "Grupo_Window"},
    {"INPC", "Año|Mes|Valor", Datos<&C::Inpc>, Relee<&C::LoadInpc>, O::ID_INPC, "Inpc_Window"},
    {"Módulos", "Clave|Descripción", Datos<&C::Modulos>, Relee<&C::LoadModulos>, O::ID_MODULOS,
     "Modulo_Window"},
    {"Monedas", "Clave|Valor|Descripción", Datos<&C::Monedas>, Relee<&C::LoadMonedas>, O::ID_MONEDAS,
     "Monedas_Window"},
    {"Motivos de baja", "Número|Motivo", Datos<&C::MotivosBaja>, Relee<&C::LoadMotivosBaja>, O::ID_MOTIVOBAJA,
     "MotivoBaja_Window"},
    {"Movimientos bancarios", "Clave|Descripción|Suma o resta", Datos<&C::TipoMoviBancos>,
     Relee<&C::LoadTipoMoviBancos>, O::ID_TIPOMOVIBANCOS, "TipoMoviBanco_Window"},
    {"Ocupaciones", "Número|Ocupación", Datos<&C::Ocupaciones>, Relee<&C::LoadOcupaciones>, O::ID_OCUPACIONES,
     "Ocupacion_Window"},
    {"Recargos", "Año|Mes|Recargo", Datos<&C::Recargos>, Relee<&C::LoadRecargos>, O::ID_RECARGOS,
     "Recargos_Window"},
    {"Series de tasas", "Serie|Descripción", Datos<&C::TipoTasaInteres>,
     [] { catalogo.LoadTipoTasa("SELECT * FROM subtipotasa('a','null','null','null');"); }, O::ID_TASAINTERES,
     "TasaInteres_Window"},
    {"Socios", "Número|Clave|Paterno|Materno|Nombre|Estatus", Datos<&C::SociosCaja>,
     Relee<&C::LoadSociosCaja>, 0, nullptr},
    {"Tasas variables", "Número|Serie|Desde|Hasta|Valor 1|Valor 2", Datos<&C::TasaInteres>,
     [] { catalogo.LoadTasas("SELECT * FROM spstasavariable(0);"); }, O::ID_TIPOTASAINTERES,
     "TipoTasaInteres_Window"},
    {"Tipos de acreditado", "Número|Descripción", Datos<&C::TipoAcreditadosR>,
     Relee<&C::LoadTipoAcreditadosR>, 0, nullptr},
    {"Tipos de asentamiento", "Número|Asentamiento", Datos<&C::TipoAsentamientos>,
     Relee<&C::LoadTipoAsentamientos>, O::ID_TIPOS_DE_ASENTAMIENTO, "TipoAsentamiento_Window"},
    {"Tipos de depreciación",
     "Número|Moneda|Cuenta de activo|Cuenta de depreciación|Cuenta de gasto|Cuenta de baja|Descripción|"
     "Tasa contable|Tasa fiscal|Máximo deducible|Porcentaje",
     Datos<&C::TipoDepreciacion>, Relee<&C::LoadTipoDepreciacion>, O::ID_DEPRECIACIONES,
     "TipoDepreciaciones_Window"},
    {"Tipos de garantías", "Clave|Descripción", Datos<&C::Tipo_Garantia>, Relee<&C::LoadTipoGarantia>,
     O::ID_TIPOGARANTIA, "Tipo_Garantia_Window"},
    {"Tipos de inversión",
     "Clave|Cuenta de riesgo|Int. no cobrado|Fórmula|Cuenta de pasivo|Pasivo vencida|Cuenta de interés|"
     "Cuenta de IVA|Descripción|Tasa normal|Plazo|Aplica IVA|Aplica ISR|Reinvierte interés|Tipo de "
     "movimiento|"
     "Provisión ISR|Clasificación|Monto máximo|Monto mínimo|Plazo máximo",
     Datos<&C::TipoInversiones>, Relee<&C::LoadTipoInversiones>, O::ID_TIPOINVERSION, "TipoInversion_Window"},
    {"Tipos de movimientos",
     "Clave|Cuenta de depósito|Cuenta de retiro|Int. pagado|Int. cobrado|Cuenta de IVA|Cuenta de "
     "ISR|Descripción|"
     "Aplica saldo|Tipo de póliza|Acepta depósito|Acepta retiro|Tasa de interés|Orden acreedora|Orden "
     "deudora|"
     "Cuenta de orden|Provisión ISR|Comisión|% comisión|% IVA comisión|Cuenta de comisión|Cuenta IVA "
     "comisión|"
     "Desglosa IVA",
     Datos<&C::TipoMovimiento>, Relee<&C::LoadTipoMovimiento>, O::ID_TIPOMOVIMIENTO, "TipoMovimiento_Window"},
    {"Tipos de préstamos",
     "Clave|Activo|Activo vencida|Int. normal|Normal vencido|Normal no cobrado|Int. moratorio|Moratorio "
     "vencido|"
     "Cuenta de IVA|Cuenta de ISR|Orden interés|Aval deudor|Movimiento de garantía|Descripción|Tantos|Tasa "
     "normal|"
     "Tasa moratoria|Aplica IVA|Días a vencida|Int. devengado|Riesgo de crédito|Orden deudor moratorio "
     "bonificado|"
     "Orden acreedor moratorio bonificado|Orden deudor normal bonificado|Orden acreedor normal bonificado|"
     "Gastos de cobranza|Gastos de otorgamiento|Normal vencido, resultados|Orden interés acreedor|Fórmula "
     "normal|"
     "Fórmula moratoria|Finalidad|Normal vigente, resultados|Aval acreedor|Garantía deudor|Garantía acreedor|"
     "Provisión IVA|Monto máximo|Plazo máximo|Monto mínimo|Avales mínimos|Periodo en días|Estatus|Comisión|"
     "IVA comisión|Cuenta de comisión|Cuenta IVA comisión|Nivel de autorización|Reciprocidad|Grupal|"
     "Clasificación contable",
     Datos<&C::TipoPrestamo>, Relee<&C::LoadTipoPrestamo>, O::ID_TIPOPRESTAMOS, "TipoPrestamo_Window"},
    {"Tipos de promoción", "Número|Tipo de movimiento|Desde|Hasta|Condición|Estatus|Descripción",
     Datos<&C::TipoPromociones>, Relee<&C::LoadTipoPromociones>, O::ID_TIPOPROMOCION, "TipoPromocion_Window"},
    {"Tipos de socios", "Clave|Descripción|Observaciones", Datos<&C::TiposSocios>, Relee<&C::LoadTiposSocios>,
     O::ID_TIPOSOCIOS, "TipoSocio_Window"},
    {"Tipos de usuarios", "Clave|Descripción", Datos<&C::TiposUsuarios>, Relee<&C::LoadTiposUsuarios>,
     O::ID_TIPOUSUARIOS, "TipoUsuario_Window"},
    {"UDIS", "Fecha|Valor", Datos<&C::Udis>, Relee<&C::LoadUdis>, O::ID_UDIS, "Udis_Window"},
    {"Usuarios", "Login|Tipo|Jefe||Correo|Impresora|Observaciones|Persona", Datos<&C::Usuarios>,
     Relee<&C::LoadUsuarios>, O::ID_USUARIOS, "Usuario_Window"},
};

}  // namespace

void EligeEnForma(FXWindow* forma, const Catalogado& catalogado, const std::vector<std::string>& renglon) {
  if (auto* const cuentas = dynamic_cast<CuentaContable_Window*>(forma)) {
    cuentas->Muestra(renglon[0].c_str());
  } else if (auto* const colonias = dynamic_cast<Colonia_Window*>(forma)) {  // lists those of a postal code
    colonias->Muestra(atol(renglon[3].c_str()), atol(renglon[0].c_str()));
  } else if (auto* const arbol = Primera<FXFoldingList>(forma)) {
    Elige(arbol, renglon[0].c_str());
  } else if (auto* const lista = Primera<FXList>(forma)) {
    const Tabla tabla = catalogado.Hace();
    const int lugar = Lugar(tabla, renglon);
    if (lugar >= 0 && lista->getNumItems() == tabla.Filas()) Elige(lista, lugar);
  }
}

const std::vector<Catalogado>& Catalogados() { return catalogados; }
