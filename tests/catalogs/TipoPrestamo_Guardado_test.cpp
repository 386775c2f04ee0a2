// What the form of the types of loan saves and reads, field by field, and what it does when something is
// missing, dead, gone, out of range or cut off.
#include "catalogs/finance/Busqueda_Window.h"
#include "tests/catalogs/PrestamoDePrueba.h"
#include "tests/support/Maltrato.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Registros.h"

namespace pruebas {
namespace {

using V = TipoPrestamo_Window;

class TipoPrestamoGuardadoTest : public ConPrestamo {
 protected:
  /// Registers a row and finds it again.
  void Registra(const Valores& valores) {
    Llena(valores);
    ASSERT_EQ(Acepta(), Textos{"Registrar ?"});
    ASSERT_TRUE(Busca(valores.at("TipoPrestamoID")).empty());
    espia_.Vacia();
  }
  static std::string Columna(const std::string& clave, const std::string& columna) {
    return EnElServidor(clave).at(columna);
  }
};

TEST_F(TipoPrestamoGuardadoTest, CadaCampoGuardaSuColumnaYSeLeeDeVuelta) {
  const Valores alta = Alta();
  Llena(alta);
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(cuadros_.at(0).titulo, "Tipo de Prestamo");
  EXPECT_EQ(Enviado(), Guardado(Record().alta, alta));
  EXPECT_EQ(EnElServidor("Q"), alta);
  EXPECT_EQ(Lista(forma_)->getItemText(Lista(forma_)->getCurrentItem()), "Prueba");
  Manda("&Nuevo");
  EXPECT_TRUE(Busca("Q").empty());
  EXPECT_EQ(Pantalla(), Vistos(alta));
  EXPECT_TRUE(Manda("&Aceptar").empty());  // what was read is what is there

  const Valores otra = Otra();
  Llena(otra);
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(EnElServidor("Q"), otra);
  Manda("&Nuevo");
  Busca("Q");
  EXPECT_EQ(Pantalla(), Vistos(otra));
}

TEST_F(TipoPrestamoGuardadoTest, CadaCampoCambiaSuColumnaYNingunaOtra) {
  Valores valores = Alta();
  Registra(valores);
  const Valores otra = Otra();
  for (const C& campo : campos) {
    const std::string columna = campo.columna;
    if (columna == "TipoPrestamoID" || otra.at(columna) == valores.at(columna)) continue;
    SCOPED_TRACE(columna);
    Pon(campo, otra.at(columna));
    valores[columna] = otra.at(columna);
    EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
    EXPECT_EQ(Enviado(), Guardado(Record().cambio, valores));
  }
  EXPECT_EQ(EnElServidor("Q"), otra);
}

TEST_F(TipoPrestamoGuardadoTest, CadaLupaParteDeSuCuentaYDejaLaHalladaYTresNoHacenNada) {
  Valores valores = Alta();
  Registra(valores);
  const Valores otra = Otra();
  int vivas = 0;
  for (const C& campo : campos) {
    if (campo.tipo != C::Cuenta) continue;
    SCOPED_TRACE(campo.columna);
    Hojea(campo.pagina);
    const int antes = Opcion(campo, valores.at(campo.columna));
    const int despues = campo.vive ? Opcion(campo, otra.at(campo.columna)) : antes;
    {
      Guion guion;
      if (campo.vive)
        guion.Con([&](FXDialogBox* dialogo) {
          EXPECT_EQ(dialogo->getMetaClass(), FXMETACLASS(Busqueda_Window));
          EXPECT_EQ(Lista(dialogo)->getCurrentItem(), antes);
          EligeRenglon(Lista(dialogo), despues);
          Pulsa(Boton(dialogo, "&Aceptar"));
        });
      Pulsa(Lupa(campo));
    }
    EXPECT_EQ(Combo(campo)->getCurrentItem(), despues);
    if (campo.vive) valores[campo.columna] = otra.at(campo.columna);
    vivas += campo.vive;
  }
  EXPECT_EQ(vivas, 25);
  Acepta();
  EXPECT_EQ(EnElServidor("Q"), valores);
}

TEST_F(TipoPrestamoGuardadoTest, LoQueUnaLupaMuertaMandaTampocoSeAtiende) {
  for (const char* columna : {"CuentaGtosAdm", "CuentaIntNormalResVencida", "OrdenInteresAcreedor"}) {
    const Guion guion;  // a dialog would fail the test
    const FXSelector mensaje = FXSEL(SEL_COMMAND, Lupa(Campo(columna))->getSelector());
    EXPECT_EQ(forma_->handle(&App(), mensaje, nullptr), columna == std::string("CuentaGtosAdm") ? 1 : 0);
  }
}

TEST_F(TipoPrestamoGuardadoTest, CadaMandoRespondeUno) {
  for (const FXSelector mensaje :
       std::vector<FXSelector>{V::ID_PANEL, V::ID_TIPOMOVIMIENTO, V::ID_APLICAIVA, V::ID_PRESTAMOGRUPAL,
                               FXSelector{V::ID_CUENTA} + FXSelector{V::CuentaIva}})
    EXPECT_EQ(forma_->handle(&App(), FXSEL(SEL_COMMAND, mensaje), nullptr), 1) << mensaje;
  EXPECT_EQ(forma_->handle(&App(), FXSEL(SEL_CLOSE, 0), nullptr), 1);
  EXPECT_EQ(forma_->handle(&App(), FXSEL(SEL_SIGNAL, V::ID_SALIR), nullptr), 1);
}

// What looks alive and is not.

TEST_F(TipoPrestamoGuardadoTest, MarcarGrupalYTeclearElNivelNoGuardaNada) {
  Llena(Alta());
  Pon("PrestamoGrupal", "1");
  Pon("NivelAutorizacion", "5");
  Acepta();
  EXPECT_EQ(espia_.Cuantas("nivelautorizacion=0,reciprocidad=12.500000,prestamogrupal=0,"), 1u);

  EnLaTabla(
      "update norte.tipoprestamo set nivelautorizacion = 4, prestamogrupal = 1"
      " where tipoprestamoid = 'Q'");
  Manda("&Nuevo");
  Busca("Q");
  EXPECT_TRUE(Casilla(Campo("PrestamoGrupal"))->getCheck());
  Pon("PrestamoGrupal", "0");
  Pon("NivelAutorizacion", "5");
  EXPECT_TRUE(Manda("&Aceptar").empty());  // nothing has changed
  Pon("DescTipoPrestamo", "Otra");
  Acepta();
  EXPECT_EQ(Columna("Q", "NivelAutorizacion"), "4");
  EXPECT_EQ(Columna("Q", "PrestamoGrupal"), "1");
  Manda("&Nuevo");
  EXPECT_FALSE(Casilla(Campo("PrestamoGrupal"))->getCheck());
}

// The optional accounts.

TEST_F(TipoPrestamoGuardadoTest, UnaCuentaOpcionalVaciaMuestraLaPrimeraYSeGuardaVaciaHastaQueSeElige) {
  Valores valores = Alta();
  Registra(valores);
  const Textos opcionales = {"OrdenDeudorNormalBonificado", "OrdenAcredorNormalBonificado",
                             "CuentaFondoRecuperacion",     "CuentaGtosAdm",
                             "CuentaIntNormalResVencida",   "OrdenInteresAcreedor",
                             "CuentaIntNormalResVigente",   "CuentaRiesgoCredRes"};
  for (const std::string& columna : opcionales)
    EnLaTabla("update norte.tipoprestamo set " + columna + " = null where tipoprestamoid = 'Q'");
  const Valores leidos = EnElServidor("Q");
  Manda("&Nuevo");
  Busca("Q");
  Pon("DescTipoPrestamo", "Otra");
  EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
  for (const std::string& columna : opcionales) {
    EXPECT_EQ(Combo(Campo(columna))->getCurrentItem(), 0) << columna;
    EXPECT_EQ(Columna("Q", columna), leidos.at(columna)) << columna;
    EXPECT_EQ(
        base_.Valor("select " + columna + " is null from norte.tipoprestamo where tipoprestamoid = 'Q'"),
        "t");
    Pon(columna, valores.at(columna));
  }
  EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
  valores["DescTipoPrestamo"] = "Otra";
  EXPECT_EQ(EnElServidor("Q"), valores);
}

// The rules.

TEST_F(TipoPrestamoGuardadoTest, UnaFormaVaciaSeRechazaPorPartes) {
  EXPECT_EQ(Rechazo(), "No ha capturado la descripción");  // the "N" of the tax is a change already
  Pon("TipoPrestamoID", "Z");
  EXPECT_EQ(Rechazo(), "No ha capturado la descripción");
  EXPECT_EQ(Leido(forma_, "Clave:"), "Z");
  Pon("DescTipoPrestamo", "Prueba");
  EXPECT_EQ(Rechazo(), "Falta capturar cuenta de Activo");
  EXPECT_TRUE(espia_.Sentencias().empty());
}

TEST_F(TipoPrestamoGuardadoTest, FormulasYFinalidadSinElegirFaltan) {
  const struct {
    const char* columna;
    const char* texto;
  } casos[] = {
      {"CalculoNormalID", "No ha especificado la formula de default para el interes normal."},
      {"CalculoMoraID", "No ha especificado la formula de default para el interes moratorio."},
      {"ClaveFinalidad", "Falta capturar la finalidad de default"},
  };
  for (const auto& [columna, texto] : casos) {
    SCOPED_TRACE(columna);
    Manda("&Nuevo");
    Llena(Alta());
    Combo(Campo(columna))->setCurrentItem(-1);
    EXPECT_EQ(Rechazo(), texto);
    Pon(columna, Alta().at(columna));
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Registrar ?"});
  }
}

TEST_F(TipoPrestamoGuardadoTest, UnaCuentaQueNoEsAfectableSeEligeYSeRechaza) {
  Llena(Alta());
  Pon("CuentaActivo", Cuenta("1000"));
  EXPECT_EQ(Rechazo(), "La cuenta de activo debe ser afectable");
  EXPECT_EQ(Combo(Campo("CuentaActivo"))->getCurrentItem(), Opcion(Campo("CuentaActivo"), Cuenta("1000")));
}

TEST_F(TipoPrestamoGuardadoTest, NuevoDejaIvaEnNoYTodoVacioEnLaPaginaALaVista) {
  Llena(Alta());  // ends on the last page
  Manda("&Nuevo");
  EXPECT_EQ(Libro()->getCurrent(), 5);
  for (const C& campo : campos) {
    SCOPED_TRACE(campo.columna);
    const std::string visto = Pantalla().at(campo.columna);
    const bool numero = campo.tipo == C::Texto && (campo.estilo & (TEXTFIELD_REAL | TEXTFIELD_INTEGER)) != 0;
    if (campo.columna == std::string("NivelAutorizacion") ||
        campo.columna == std::string("ClasificacionContable")) {
      EXPECT_EQ(visto, "");
    } else {
      EXPECT_EQ(visto, numero ? "0" : campo.tipo == C::Texto ? "" : campo.tipo == C::Casilla ? "0" : "-1");
    }
  }
  EXPECT_TRUE(tipoprestamo.IsNew());
  Llena(Alta());
  Manda("&Nuevo");
  // A box that is never touched says no.
  for (const C& campo : campos)
    if (campo.columna != std::string("AplicaIvaPrestamo") && (campo.vive || campo.tipo == C::Cuenta))
      Pon(campo, Alta().at(campo.columna));
  Acepta();
  EXPECT_EQ(Columna("Q", "AplicaIvaPrestamo"), "N");
}

// The commands.

TEST_F(TipoPrestamoGuardadoTest, BuscarNoMueveLaLista) {
  const auto clave = [](FXint renglon) {
    return std::string(Catalogo::TipoPrestamo[renglon].getTipoPrestamoID());
  };
  EligeRenglon(Lista(forma_), 2);
  EXPECT_EQ(Pantalla().at("TipoPrestamoID"), clave(2));
  EXPECT_TRUE(Busca(clave(5)).empty());
  EXPECT_EQ(Pantalla().at("DescTipoPrestamo"), Catalogo::TipoPrestamo[5].getDescTipoPrestamo());
  EXPECT_EQ(Lista(forma_)->getCurrentItem(), 2);
  EXPECT_EQ(Busca("ZZZ", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
  EXPECT_EQ(Lista(forma_)->getCurrentItem(), 2);
  EXPECT_EQ(Pantalla().at("TipoPrestamoID"), "");
}

TEST_F(TipoPrestamoGuardadoTest, ElRenglonElegidoSeMuestraEntero) {
  for (FXint renglon = 0; renglon < Lista(forma_)->getNumItems(); ++renglon) {
    EligeRenglon(Lista(forma_), renglon);
    const std::string clave = Catalogo::TipoPrestamo[renglon].getTipoPrestamoID();
    const Valores visto = Pantalla();
    EXPECT_EQ(visto, Vistos(EnElServidor(clave))) << clave;
    EXPECT_TRUE(Manda("&Aceptar").empty()) << clave;
  }
}

TEST_F(TipoPrestamoGuardadoTest, BorraTrasPreguntarYSinPreguntarLoQueNoExiste) {
  Registra(Alta());
  EXPECT_EQ(Manda("&Borrar", {Respuesta::No}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(Pantalla(), Vistos(Alta()));
  EXPECT_EQ(Manda("&Borrar", {Respuesta::Si}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(espia_.Cuantas("SELECT spdtipoprestamo('Q  ');"), 1u);
  EXPECT_EQ(base_.Valor("select count(*) from norte.tipoprestamo where tipoprestamoid = 'Q'"), "0");
  EXPECT_EQ(Lista(forma_)->getNumItems(), 8);
  EXPECT_EQ(Pantalla().at("CuentaActivo"), "-1");
  Pon("TipoPrestamoID", "Q");
  EXPECT_TRUE(Manda("&Borrar").empty());
  EXPECT_EQ(Pantalla().at("TipoPrestamoID"), "");
}

TEST_F(TipoPrestamoGuardadoTest, UnBorradoQueElServidorNiegaDejaElRenglon) {
  Busca("ORD");  // loans hang on it
  const Textos dichos = Manda("&Borrar", {Respuesta::Si, Respuesta::Aceptar});
  EXPECT_EQ(dichos.at(0), "Borrar el registro ?");
  EXPECT_EQ(cuadros_.at(1).titulo, "Error en Validación");
  EXPECT_EQ(Lista(forma_)->getNumItems(), 8);
  EXPECT_EQ(Pantalla().at("TipoPrestamoID"), "ORD");
  EXPECT_EQ(Profundidad(), 0);
}

TEST_F(TipoPrestamoGuardadoTest, ContestarQueNoDejaTodoYPreguntaOtraVez) {
  Llena(Alta());
  for (int vez = 0; vez < 2; ++vez) EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Registrar ?"});
  EXPECT_TRUE(Enviado().empty());
  EXPECT_EQ(Pantalla(), Vistos(Alta()));
}

// What is gone or new since the form was opened.

TEST_F(TipoPrestamoGuardadoTest, LoQueSeAgregaConLaFormaAbiertaNoSeOfreceHastaAbrirlaOtraVez) {
  const auto cuantos = [&] {
    std::vector<FXint> items;
    for (const FXComboBox* combo : Todos<FXComboBox>(forma_)) items.push_back(combo->getNumItems());
    return items;
  };
  const std::vector<FXint> antes = cuantos();
  base_.Ejecuta("insert into norte.finalidades select 'ZZZ', 'Nueva'");
  catalogo.LoadFinalidades();
  EligeRenglon(Lista(forma_), 0);
  EXPECT_EQ(cuantos(), antes);
  Cierra();
  Abre();
  EXPECT_NE(cuantos(), antes);
  EXPECT_EQ(Combo(Campo("ClaveFinalidad"))->getNumItems(), static_cast<FXint>(Catalogo::Finalidades.size()));
}

TEST_F(TipoPrestamoGuardadoTest, UnaCuentaBorradaSeNiegaPorElServidorYNadaQuedaAMedias) {
  Valores valores = Alta();
  Registra(valores);
  const std::string borrada =
      base_.Valor("select cuentaid from norte.catalogo_ctas where cuentanombre = 'Caja chica'");
  Pon("CuentaProvisionIVA", borrada);
  Pon("DescTipoPrestamo", "A medias");
  base_.Ejecuta("delete from norte.catalogo_ctas where cuentaid = '" + borrada + "'");
  const Textos dichos = Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar});
  EXPECT_EQ(dichos.at(0), "Guardar cambios realizados ?");
  EXPECT_EQ(cuadros_.at(1).titulo, "Error en Validación");
  EXPECT_EQ(EnElServidor("Q"), valores);  // the first statement is undone as well
  EXPECT_EQ(Profundidad(), 0);
  Pon("CuentaProvisionIVA", valores.at("CuentaProvisionIVA"));
  EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(Columna("Q", "DescTipoPrestamo"), "A medias");
}

TEST_F(TipoPrestamoGuardadoTest, UnaFormulaFinalidadOMovimientoQueYaNoExisteMuestraElPrimero) {
  Registra(Alta());
  Catalogo::Calculos = {{0, Catalogo::Calculos[0]}};
  Catalogo::Finalidades = {{0, Catalogo::Finalidades[0]}};
  Catalogo::TipoMovimiento = {{0, Catalogo::TipoMovimiento[0]}};
  ASSERT_TRUE(Busca("Q").empty());
  for (const char* columna : {"CalculoNormalID", "CalculoMoraID", "ClaveFinalidad", "ClaveMoviGarantia"})
    EXPECT_EQ(Combo(Campo(columna))->getCurrentItem(), 0) << columna;
  // The movement is kept, since nobody picked another; the others are what the combo boxes show.
  EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(Columna("Q", "ClaveMoviGarantia"), Alta().at("ClaveMoviGarantia"));
  EXPECT_EQ(Columna("Q", "CalculoNormalID"), std::to_string(Catalogo::Calculos[0].getCalculoID()));
  EXPECT_EQ(Columna("Q", "CalculoMoraID"), std::to_string(Catalogo::Calculos[0].getCalculoID()));
  EXPECT_EQ(Columna("Q", "ClaveFinalidad"), Catalogo::Finalidades[0].getClaveFinalidad());
  // A row picked that the cache has lost counts as none.
  EligeRenglon(Lista(forma_), 0);
  Hojea("&Generales");
  EligeOpcion(Combo(Campo("CalculoNormalID")), 3);
  EXPECT_EQ(Rechazo(), "No ha especificado la formula de default para el interes normal.");
}

TEST_F(TipoPrestamoGuardadoTest, LoQueSeBorroEnElServidorSeNiegaYNadaQuedaAMedias) {
  const char* const otraFormula =
      "insert into norte.calculo select (jsonb_populate_record(c, '{\"calculoid\": 99}')).*"
      " from norte.calculo c where calculoid = 1";
  const char* const sinFormula = "delete from norte.calculo where calculoid = 99";
  const struct {
    const char* columna;
    const char* clave;
    const char* alta;
    const char* baja;
    const char* texto;
  } casos[] = {
      {"CalculoNormalID", "99", otraFormula, sinFormula, "No existe la fórmula de interés normal: número 99"},
      {"CalculoMoraID", "99", otraFormula, sinFormula,
       "No existe la fórmula de interés moratorio: número 99"},
      {"ClaveFinalidad", "ZZZ", "insert into norte.finalidades values ('ZZZ', 'Prueba')",
       "delete from norte.finalidades where clavefinalidad = 'ZZZ'", "No existe la finalidad: ZZZ"},
      {"ClaveMoviGarantia", "ZZ",
       "insert into norte.tipomovimiento select (jsonb_populate_record(t, '{\"tipomovimientoid\": "
       "\"ZZ\"}')).*"
       " from norte.tipomovimiento t where tipomovimientoid = 'GL'",
       "delete from norte.tipomovimiento where tipomovimientoid = 'ZZ'",
       "No existe el movimiento de garantía: ZZ"},
  };
  for (const auto& [columna, clave, alta, baja, texto] : casos)
    base_.Ejecuta(alta + std::string(" on conflict do nothing"));
  LlenaCache();
  Cierra();
  Abre();
  Registra(Alta());
  for (const auto& [columna, clave, alta, baja, texto] : casos) {
    SCOPED_TRACE(columna);
    base_.Ejecuta(baja);
    Busca("Q");
    Pon(columna, clave);
    Pon("CuentaProvisionIVA", Otra().at("CuentaProvisionIVA"));
    const Textos dichos = Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar});
    EXPECT_NE(dichos.at(1).find(texto), std::string::npos) << dichos.at(1);
    EXPECT_EQ(EnElServidor("Q"), Alta());
  }
}

// Bad input.

TEST_F(TipoPrestamoGuardadoTest, CuentasDe24LetrasConDescripcionDeAcentosNoSeCortan) {
  std::string acentos;
  for (int i = 0; i < 15; ++i) acentos += "é";  // what the column of the description holds of 30 of them
  Valores valores = Alta();
  int numero = 0;
  for (const C& campo : campos) {
    if (campo.tipo != C::Cuenta) continue;
    const std::string cuenta = "9999-99-99-99-9999-" + std::to_string(10000 + numero++);
    ASSERT_EQ(cuenta.size(), 24u);
    base_.Ejecuta(
        "insert into norte.catalogo_ctas select (jsonb_populate_record(c, jsonb_build_object("
        "'cuentaid', '" +
        cuenta +
        "'))).* from norte.catalogo_ctas c where cuentaid ="
        " '1301-01-00-00-0000'");
    valores[campo.columna] = cuenta;
  }
  LlenaCache();
  Cierra();
  Abre();
  Llena(valores);
  Pon("DescTipoPrestamo", acentos + acentos);
  valores["DescTipoPrestamo"] = acentos;
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(Enviado(), Guardado(Record().alta, valores));
  EXPECT_EQ(EnElServidor("Q"), valores);
}

TEST_F(TipoPrestamoGuardadoTest, LosMontosEnElLimiteSeGuardanOSeNieganSinQuedarAMedias) {
  enum Final { Guarda, Rechaza, Niega };  // saved, refused by a rule, refused by the server
  const struct {
    const char* columna;
    const char* tecleado;
    Final final;
    const char* texto;  // what is then on the server, or in the box
  } casos[] = {
      {"MontoMaximo", "9999999999", Guarda, "9999999999.000000"},
      {"MontoMaximo", "-0.01", Rechaza, "El monto maximo no puede ser negativo"},
      {"MontoMaximo", "1e30", Niega, "fuera de rango el monto máximo"},
      {"MontoMaximo", "1e999", Niega, "inf"},
      {"MontoMaximo", "", Guarda, "0.000000"},
      {"MontoMinimo", "", Rechaza, "El monto minimo debe ser mayo que cero"},
      {"MontoMinimo", "0.01", Guarda, "0.010000"},
      {"MontoMinimo", "-5", Rechaza, "El monto minimo debe ser mayo que cero"},
      {"Tasa_Normal", "9999.999", Guarda, "9999.999023"},
      {"Tasa_Normal", "10000", Niega, "fuera de rango la tasa normal"},
      {"Tasa_Normal", "1e30", Niega, "fuera de rango la tasa normal"},
      {"Tasa_Normal", "1e39", Niega, "inf"},
      {"Tasa_Mora", "-1", Niega, "fuera de rango la tasa moratoria"},
      {"Tasa_Mora", "", Guarda, "0.000000"},
      {"Comision", "1e30", Niega, "fuera de rango la comisión"},
      {"Comision", "", Guarda, "0.000000"},
      {"IvaComision", "-0.5", Rechaza, "El IVA de la comision no puede ser negativo"},
      {"Reciprocidad", "-1", Rechaza, "La reciprocidad no puede ser negativa"},
      {"PlazoMaximo", "99999", Guarda, "99999"},
      {"PlazoMaximo", "-1", Rechaza, "El plazo maximo no puede ser negativo"},
      {"AvalesMinimos", "-1", Rechaza, "El numero de avales no puede ser negativo"},
      {"Tantos", "-1", Niega, "fuera de rango el número de tantos"},
      {"DiasTraspasoAVencida", "", Rechaza, "Falta especificar los dias para traspasar a Cartera Vencida"},
  };
  const std::map<Final, std::vector<Respuesta>> respuestas = {{Guarda, {Respuesta::Si}},
                                                              {Rechaza, {Respuesta::Aceptar}},
                                                              {Niega, {Respuesta::Si, Respuesta::Aceptar}}};
  Registra(Alta());
  for (const auto& [columna, tecleado, final, texto] : casos) {
    SCOPED_TRACE(columna + std::string(" ") + tecleado);
    Valores esperado = EnElServidor("Q");
    Busca("Q");
    Pon(columna, tecleado);
    const Textos dichos = Manda("&Aceptar", respuestas.at(final));
    if (final == Guarda) {
      esperado[columna] = texto;
    } else {
      EXPECT_NE(dichos.back().find(texto), std::string::npos) << dichos.back();
    }
    EXPECT_EQ(EnElServidor("Q"), esperado);
    EXPECT_EQ(Profundidad(), 0);
  }
}

TEST_F(TipoPrestamoGuardadoTest, EnLaClasificacionSoloCabenNumeros) {
  Pon("ClasificacionContable", "13a0'1%");
  EXPECT_EQ(Pantalla().at("ClasificacionContable"), "1301");
}

TEST_F(TipoPrestamoGuardadoTest, UnUsuarioDescuidadoNoTumbaNingunaPagina) {
  for (const FXTabItem* lengueta : Todos<FXTabItem>(forma_)) {
    SCOPED_TRACE(Rotulo(lengueta));
    Hojea(Rotulo(lengueta));
    Maltrata(Pagina(Rotulo(lengueta)));
    for (const std::string& texto : TextosDesmedidos()) {
      TecleaEnTodo(forma_, texto);
      Guion guion;
      guion.EnAdelante([](FXDialogBox* cuadro) { Pulsa(Todos<FXButton>(cuadro).front()); });
      Pulsa(Boton(forma_, "&Aceptar"));
    }
  }
  EXPECT_EQ(Profundidad(), 0);
  Cierra();
  Abre();
  EXPECT_TRUE(Busca("ORD").empty());
  EXPECT_EQ(Pantalla(), Vistos(EnElServidor("ORD")));
}

// The connection breaks at each statement of a save in turn, ahead of it and behind it.
TEST_F(TipoPrestamoGuardadoTest, UnaLineaCortadaAlGuardarNoDejaNadaAMediasYSeSigueTrabajando) {
  constexpr size_t sentencias = 7;  // BEGIN, the two of the save, COMMIT, and the three of the load
  constexpr size_t commit = 3;
  const Valores alta = Alta();
  for (const bool cambio : {false, true}) {
    for (size_t n = 0; n < sentencias; ++n) {
      for (const bool despues : {false, true}) {
        SCOPED_TRACE((cambio ? "cambio " : "alta ") + std::to_string(n) + (despues ? " después" : " antes"));
        EnLaTabla("delete from norte.tipoprestamo where tipoprestamoid = 'Q'");
        Manda("&Nuevo");
        tipoprestamo.Clear();
        tipoprestamo.setIsNew(true);
        Llena(alta);
        if (cambio) {
          Acepta();
          Pon("DescTipoPrestamo", "Otra");
          Pon("CuentaProvisionIVA", Otra().at("CuentaProvisionIVA"));
        }
        espia_.Vacia();
        espia_.En(n, despues ? falla::CorteDespues() : falla::CorteAntes());
        std::vector<Respuesta> respuestas = {Respuesta::Si};
        if (n <= commit + 1) respuestas.push_back(Respuesta::Aceptar);
        const Textos dichos = Manda("&Aceptar", respuestas);
        for (const std::string& dicho : dichos) EXPECT_NE(dicho, "");
        espia_.Vacia();

        Reconecta();
        const bool escrito = n > commit || (despues && n == commit);
        Valores esperado = alta;
        if (cambio && escrito) {
          esperado["DescTipoPrestamo"] = "Otra";
          esperado["CuentaProvisionIVA"] = Otra().at("CuentaProvisionIVA");
        }
        if (cambio || escrito) {
          EXPECT_EQ(EnElServidor("Q"), esperado);
        } else {
          EXPECT_EQ(base_.Valor("select count(*) from norte.tipoprestamo where tipoprestamoid = 'Q'"), "0");
        }
        // The form works on.
        EXPECT_TRUE(Busca("ORD").empty());
        EXPECT_EQ(Pantalla().at("DescTipoPrestamo"), "Ordinario");
        Pon("Tantos", Pantalla().at("Tantos") == "3" ? "4" : "3");
        EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
      }
    }
  }
}

}  // namespace
}  // namespace pruebas
