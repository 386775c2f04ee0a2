-- The institution as this branch sees it: one row, which the client copies at login. Texts are as wide as the client's
-- variables; yes-or-no columns are numbers, because the client reads "t" as 0.
CREATE DOMAIN si_no AS integer CHECK (VALUE IN (0, 1));

CREATE TABLE empresa (
  empresaid integer PRIMARY KEY DEFAULT 1 CHECK (empresaid = 1),
  sucid varchar(4) NOT NULL DEFAULT '',
  nombrecaja varchar(80) NOT NULL DEFAULT '',
  gerente varchar(80) NOT NULL DEFAULT '',
  presidenteadmon varchar(80) NOT NULL DEFAULT '',
  contador varchar(80) NOT NULL DEFAULT '',
  direccioncaja varchar(100) NOT NULL DEFAULT '',
  contadorsucursal varchar(80) NOT NULL DEFAULT '',
  niveloperaciones varchar(80) NOT NULL DEFAULT '',
  lineasiniciales integer NOT NULL DEFAULT 0 CHECK (lineasiniciales >= 0),
  calculaisrinversion si_no NOT NULL DEFAULT 0,
  inversionexenta numeric(14,2) NOT NULL DEFAULT 0 CHECK (inversionexenta >= 0),
  porcentajeisrinversion numeric(7,4) NOT NULL DEFAULT 0 CHECK (porcentajeisrinversion BETWEEN 0 AND 100),
  ccpresidente varchar(50) NOT NULL DEFAULT '',
  ccvicepresidente varchar(50) NOT NULL DEFAULT '',
  ccoficial varchar(50) NOT NULL DEFAULT '',
  ccanalista varchar(50) NOT NULL DEFAULT '',
  ccsecretario varchar(50) NOT NULL DEFAULT '',
  bonificaenpagopuntual si_no NOT NULL DEFAULT 0,
  porcentajebonifica numeric(7,4) NOT NULL DEFAULT 0 CHECK (porcentajebonifica BETWEEN 0 AND 100),
  preguntaperiodo si_no NOT NULL DEFAULT 0,
  sabana si_no NOT NULL DEFAULT 0,
  iva numeric(7,4) NOT NULL DEFAULT 0 CHECK (iva BETWEEN 0 AND 100),
  reciboconquery si_no NOT NULL DEFAULT 0,
  altasucursales si_no NOT NULL DEFAULT 0,
  cobrardiainicial si_no NOT NULL DEFAULT 0,
  diasanualesprestamo integer NOT NULL DEFAULT 360 CHECK (diasanualesprestamo >= 0),
  diasanualesinversion integer NOT NULL DEFAULT 360 CHECK (diasanualesinversion >= 0),
  diasanualesmov integer NOT NULL DEFAULT 360 CHECK (diasanualesmov >= 0),
  devengamoratorio si_no NOT NULL DEFAULT 0,
  tomaintervalo si_no NOT NULL DEFAULT 0,
  impresoracaja varchar(50) NOT NULL DEFAULT '',
  impresorareporte varchar(50) NOT NULL DEFAULT '',
  reporteslaser si_no NOT NULL DEFAULT 0,
  ordenaval si_no NOT NULL DEFAULT 0,
  lineasfinales integer NOT NULL DEFAULT 0 CHECK (lineasfinales >= 0),
  version character(20) NOT NULL DEFAULT '0.0.7',
  retirareciprocidad si_no NOT NULL DEFAULT 0,
  nivel integer NOT NULL DEFAULT 1 CHECK (nivel >= 0),
  modificarinversion si_no NOT NULL DEFAULT 0,
  formatopoliza integer NOT NULL DEFAULT 0 CHECK (formatopoliza >= 0),
  formatocuenta varchar(24) NOT NULL DEFAULT '',
  ciudadmexid bigint NOT NULL DEFAULT 0 CHECK (ciudadmexid >= 0),
  foliopdf integer NOT NULL DEFAULT 0 CHECK (foliopdf >= 0),
  retirainteresinversion si_no NOT NULL DEFAULT 0,
  poride numeric(7,4) NOT NULL DEFAULT 0 CHECK (poride BETWEEN 0 AND 100),
  ideexento numeric(14,2) NOT NULL DEFAULT 0 CHECK (ideexento >= 0),
  modificatasas si_no NOT NULL DEFAULT 0,
  interesamortiza si_no NOT NULL DEFAULT 0,
  comisionacreditos si_no NOT NULL DEFAULT 0,
  porcentajecomision numeric(7,4) NOT NULL DEFAULT 0 CHECK (porcentajecomision BETWEEN 0 AND 100),
  nconcurrencias integer NOT NULL DEFAULT 1 CHECK (nconcurrencias >= 0),
  diaspagoinversion integer NOT NULL DEFAULT 0 CHECK (diaspagoinversion >= 0),
  periodopagoinversion integer NOT NULL DEFAULT 0 CHECK (periodopagoinversion >= 0),
  abonointeres si_no NOT NULL DEFAULT 0,
  manejochequegrupal si_no NOT NULL DEFAULT 0,
  manejopagoamortizacion si_no NOT NULL DEFAULT 0,
  usomultisucursal si_no NOT NULL DEFAULT 0,
  manejopagoseguro si_no NOT NULL DEFAULT 0,
  manejoplazoinversion si_no NOT NULL DEFAULT 0,
  manejocargosprestamo si_no NOT NULL DEFAULT 0,
  cortecajaagrupado si_no NOT NULL DEFAULT 0,
  clientesocio varchar(9) NOT NULL DEFAULT '',
  pggrupodefault varchar(20) NOT NULL DEFAULT 'tolvara_usuarios',
  fechacobroiva date
);
COMMENT ON TABLE empresa IS 'datos de la institución: un solo renglón';
COMMENT ON COLUMN empresa.version IS 'versión del programa que puede entrar';
COMMENT ON COLUMN empresa.nconcurrencias IS 'sesiones que un usuario puede tener abiertas a la vez';
COMMENT ON COLUMN empresa.formatocuenta IS 'forma de los números de cuenta contable';
COMMENT ON COLUMN empresa.pggrupodefault IS 'grupo del servidor al que entra un usuario nuevo';
COMMENT ON COLUMN empresa.fechacobroiva IS 'día desde el que los intereses causan IVA';

CREATE TRIGGER bitacora AFTER INSERT OR UPDATE OR DELETE ON empresa
  FOR EACH ROW EXECUTE FUNCTION anota_bitacora('empresaid');

-- A login may have as many sessions as the branch that allows most of them, and some more, so that it is the client that
-- tells the user and not the server.
CREATE FUNCTION ajusta_sesiones(login text) RETURNS void
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
DECLARE
  sucursal name;
  permitidas integer;
  maximo integer := 0;
BEGIN
  FOR sucursal IN SELECT sucursales() LOOP
    EXECUTE format('SELECT max(nconcurrencias) FROM %I.empresa, %I.usuario WHERE usuarioid = $1', sucursal, sucursal)
       INTO permitidas USING login;
    maximo := greatest(maximo, permitidas);
  END LOOP;
  PERFORM limita_sesiones(login, least(maximo, 1000) + 4);
END $$;

CREATE FUNCTION ajusta_sesiones_de_todos() RETURNS trigger
LANGUAGE plpgsql SECURITY DEFINER SET search_path FROM CURRENT AS $$
BEGIN
  PERFORM ajusta_sesiones(usuarioid) FROM usuario;
  RETURN NULL;
END $$;
CREATE TRIGGER sesiones AFTER UPDATE OF nconcurrencias ON empresa
  FOR EACH ROW WHEN (OLD.nconcurrencias <> NEW.nconcurrencias) EXECUTE FUNCTION ajusta_sesiones_de_todos();

CREATE FUNCTION fechacobroiva() RETURNS date
LANGUAGE sql STABLE
RETURN (SELECT fechacobroiva FROM empresa WHERE empresaid = 1);

-- Is this, 'dd/mm/yyyy' or 'yyyy-mm-dd', the server's date? 1 or 0.
CREATE FUNCTION serverdate(dia text) RETURNS integer
LANGUAGE sql STABLE SECURITY DEFINER SET search_path FROM CURRENT
RETURN (fecha_obligatoria(dia, 'la fecha') = hoy())::integer;

GRANT SELECT ON empresa TO :"grupo";
GRANT EXECUTE ON FUNCTION fechacobroiva, serverdate TO :"grupo";

INSERT INTO empresa DEFAULT VALUES;
