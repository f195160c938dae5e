{ QVRlib21 for Delphi and Free Pascal. Made from the library's IDL by tools/imports/write.py.

  Three ways to the same objects:
    interfaces     CoQVRcfp.Create gives _QVRcfp, called through its slots; arguments go by reference, as variables
    dispinterfaces the same by number, for hosts that have only IDispatch: _QVRcfpDisp(CreateComObject(...) as IDispatch)
    classes        TQVRcfp.Create, with constants as arguments and what may be left out left out; to be freed

  The thread has called CoInitialize(Ex), and objects stay on the thread that made them. }
unit QVRlib21_TLB;

{$ifdef FPC}{$mode delphi}{$H+}{$endif}

interface

uses
  Windows, ActiveX, ComObj, SysUtils, Variants;

const
  QVRlib21MajorVersion = 1;
  QVRlib21MinorVersion = 1;

  LIBID_QVRlib21: TGUID = '{5607725A-CE38-4F60-BDB6-A350A7556FCA}';
  IID__Ov: TGUID = '{EEA88F6F-600A-44FD-8569-9C5A1056019F}';
  IID__QVRcfp: TGUID = '{BAB7D9FF-33EB-4C08-A9BF-3DB89ADC461E}';
  IID__iSQL20: TGUID = '{FE0AC381-48B5-4AA1-A217-55DA8568159D}';
  IID__cSQL20: TGUID = '{86A157CE-9E1D-4DB0-BD1D-2F178CBF9FFB}';
  IID__uSQL20: TGUID = '{54F7E510-C21E-4EDA-920D-7E68CA3884F6}';
  IID__QVRScr: TGUID = '{B61FE2B6-C646-4E64-84E0-8397AED80B1E}';
  IID__QVRprp: TGUID = '{16D61E78-756E-463D-A7D4-1F40B9AC3BE3}';
  DIID___QVRScr: TGUID = '{2C1D5E0F-CC8E-4474-B992-43AB2C4019FB}';
  CLASS_Ov: TGUID = '{88AE9FBC-6D4B-4BA9-80A2-4047614C46A7}';
  CLASS_QVRcfp: TGUID = '{B4E0A2A0-2C51-419F-BD8F-57DEC6DFF1E4}';
  CLASS_QVRScr: TGUID = '{6DE5A4C3-8FE3-4F71-92FE-614AC0AC1795}';
  CLASS_QVRprp: TGUID = '{B988C177-C827-40D6-A593-5FCF12B22492}';
  CLASS_iSQL20: TGUID = '{76DD1A60-F591-4AA8-94D7-7A4823D92426}';
  CLASS_cSQL20: TGUID = '{85011860-D958-4D78-88D8-2470229F6C32}';
  CLASS_uSQL20: TGUID = '{177DE812-A9F3-4C4F-8A6D-3F234C4314A3}';

{ Database engines }
type
  MotoresBD = TOleEnum;
const
  MotorBDJet = 1;
  MotorBDSQLServer = 2;
  MotorBDOracle = 3;

type
  _Ov = interface;
  _QVRcfp = interface;
  _iSQL20 = interface;
  _cSQL20 = interface;
  _uSQL20 = interface;
  _QVRScr = interface;
  _QVRprp = interface;

  Ov = _Ov;
  QVRcfp = _QVRcfp;
  QVRScr = _QVRScr;
  QVRprp = _QVRprp;
  iSQL20 = _iSQL20;
  cSQL20 = _cSQL20;
  uSQL20 = _uSQL20;

  { Version and location of the library }
  _Ov = interface(IDispatch)
    ['{EEA88F6F-600A-44FD-8569-9C5A1056019F}']
    { Version as one number: 2.10.24 is 21024 }
    function Version: Integer; safecall;
    { Version as text: 2.10.24 }
    function CadenaVersion: WideString; safecall;
    { Folder of the library file, without a separator at its end }
    function Path: WideString; safecall;
    { Path of the library file, ending in .dll }
    function PathCompleto: WideString; safecall;
  end;

  { Connection parameters, their protected file and their connection strings }
  _QVRcfp = interface(IDispatch)
    ['{BAB7D9FF-33EB-4C08-A9BF-3DB89ADC461E}']
    { Takes over connection parameters; True when done }
    function Asignar(var ID: WideString; var MotorBD: MotoresBD; var Provider: WideString; var DataSource: WideString;
      var InitialCatalogOTablespace: WideString; var UsuarioAdm: WideString; var ClaveAdm: WideString; var UsuarioCli:
      WideString; var ClaveCli: WideString; var OtrosParametros: WideString): WordBool; safecall;
    { Loads file A.cfp of folder R; False and empty when it is missing, damaged or of another identification }
    function Crear(var ID: WideString; var R: WideString; var A: WideString): WordBool; safecall;
    { Writes the parameters to file A.cfp of folder R; False when that fails }
    function Guardar(var ID: WideString; var R: WideString; var A: WideString): WordBool; safecall;
    { OLE DB connection string with the administrator's or the client's account }
    function CadenaADO(var ID: WideString; var Adm: WordBool): WideString; safecall;
    { OLE DB connection string with this account }
    function CadenaADOUsuario(var Usuario: WideString; var Clave: WideString): WideString; safecall;
    { Value of a typed text; type T text, N number, F date, L logical }
    function TextoAValor(var TipoTNFL: WideString; var Texto: WideString): OleVariant; safecall;
    { Typed text of a value; type T text, N number, F date, L logical }
    function ValorATexto(var TipoTNFL: WideString; var Valor: OleVariant): WideString; safecall;
    { Name of the file that the parameters came from or were saved to }
    function Get_Archivo: WideString; safecall;
    { Database engine; 0 when not set }
    function Get_MotorBD: MotoresBD; safecall;
    { OLE DB provider }
    function Get_Provider: WideString; safecall;
    { Database file, server or service name }
    function Get_DataSource: WideString; safecall;
    { SQL Server catalogue or Oracle tablespace }
    function Get_InitialCatalogOTablespace: WideString; safecall;
    { Administrator user }
    function Get_UsuarioAdm: WideString; safecall;
    { Client user }
    function Get_UsuarioCli: WideString; safecall;
    { Further connection options, appended as they stand }
    function Get_OtrosParametros: WideString; safecall;
    { Administrator password }
    function Get_ClaveAdm(var ID: WideString): WideString; safecall;
    { Client password }
    function Get_ClaveCli(var ID: WideString): WideString; safecall;
    { Text in quotes, its own quotes doubled }
    function ComillasSQL(var Cadena: WideString): WideString; safecall;
    { Literal of a value, chosen by its type }
    function ExpSQL(var Valor: OleVariant): WideString; safecall;
    { Date literal; Null for what is no date }
    function FechaSQL(var Fecha: OleVariant): WideString; safecall;
    { Time literal; Null for what is no date }
    function HoraSQL(var Fecha: OleVariant): WideString; safecall;
    { Date and time literal, or the clock for Ahora; Null for what is no date }
    function FechaHoraSQL(var Fecha: OleVariant): WideString; safecall;
    { Date, time or date and time literal, the narrowest that holds the value }
    function FechaSQLv(var Fecha: OleVariant): WideString; safecall;
    { Truth literal }
    function LogicoSQL(var Valor: WordBool): WideString; safecall;
    { The server's clock as an expression }
    function AhoraSQL: WideString; safecall;
    { Condition that the field is true }
    function sqlEsTrue(var Campo: WideString): WideString; safecall;
    { Condition that the field is false }
    function sqlEsFalse(var Campo: WideString): WideString; safecall;
    { The false constant }
    function sqlFalse: WideString; safecall;
    { Quoted LIKE pattern of a text with * and ? }
    function CadenaParaLikeSQL(var Cadena: WideString; var ComodinInicial: WordBool; var ComodinFinal: WordBool):
      WideString; safecall;
    { Statement that reads the server's clock into a column FechaSistema }
    function sqlFechaSistema: WideString; safecall;
    { Limit of rows before the select list; empty for Oracle }
    function sqlTOP(var Numero: Integer): WideString; safecall;
    { Limit of rows as a condition; empty but for Oracle }
    function sqlRowNum(var Numero: Integer; var AnteponerAndSiProcede: WordBool): WideString; safecall;
    { Join condition for triples of column, column and relation I, L or R }
    function sqlWhereRelacionTablas(var mCampo1Campo2Relacion: OleVariant): WideString; safecall;
    { Name of a column in the result }
    function sqlAlias(var Alias: WideString): WideString; safecall;
    { Concatenation of expressions }
    function sqlConcatenar(var Cadenas: OleVariant): WideString; safecall;
    { The field, or the alternative where it is null }
    function sqlEsNulo(var CampoComprobar: WideString; var CampoAlternativo: WideString): WideString; safecall;
    { Field mapped by pairs of value and result, an odd last one being the default }
    function sqlCASE(var Campo: WideString; var ParejasValoresMasOmision: OleVariant): WideString; safecall;
    { INSERT statement without a list of columns }
    function SqlINSERT(var NombreTabla: WideString; var MValores: OleVariant): WideString; safecall;
    { UPDATE statement for the row with this whole-number key }
    function SqlUPDATE(var NombreTabla: WideString; var NombreCampoClave: WideString; var Clave_cd: Integer; var
      MCampos: OleVariant; var MValores: OleVariant): WideString; safecall;
    { INSERT statement with a list of columns }
    function SqlInsert2(var NombreTabla: WideString; var MCampos: OleVariant; var MValores: OleVariant): WideString;
      safecall;
    { UPDATE statement with a condition of any form }
    function SqlUpdate2(var NombreTabla: WideString; var MCampos: OleVariant; var MValores: OleVariant; var Condicion:
      WideString): WideString; safecall;
    { Calls a stored procedure of SQL Server; output values come back in the array }
    function EjecutarProcSQL7(var Conexion: IDispatch; var NombreProc: WideString; var Parametros: OleVariant):
      WordBool; safecall;
    { Appends a parameter whose type fits the engine to a command }
    function AgregarParametroADO(var Comando: IDispatch; var TipoSQLServer: WideString; var Nombre: WideString; var
      Valor: OleVariant; var Ancho: Integer; var Direction: TOleEnum): WordBool; safecall;
    property Archivo: WideString read Get_Archivo;
    property MotorBD: MotoresBD read Get_MotorBD;
    property Provider: WideString read Get_Provider;
    property DataSource: WideString read Get_DataSource;
    property InitialCatalogOTablespace: WideString read Get_InitialCatalogOTablespace;
    property UsuarioAdm: WideString read Get_UsuarioAdm;
    property UsuarioCli: WideString read Get_UsuarioCli;
    property OtrosParametros: WideString read Get_OtrosParametros;
  end;

  { What every query offers: a statement as created beside what was added to it }
  _iSQL20 = interface(IDispatch)
    ['{FE0AC381-48B5-4AA1-A217-55DA8568159D}']
    { What was added to the query, as one text to be kept }
    function Get_CriterioActualCompleto: WideString; safecall;
    { Puts back what was added from such a text }
    procedure Set_CriterioActualCompleto(Valor: WideString); safecall;
    { Makes what was added part of the statement as created }
    procedure AdoptaComoOriginal(var AdoptarWhere: WordBool; var AdoptarHaving: WordBool; var AdoptarOrder: WordBool);
      safecall;
    { Narrows the query; False for an empty condition and for one that is there already }
    function AmpliarCondicionWhere(var Condicion: WideString; var Criterio: WideString): WordBool; safecall;
    { Sorts by this column first, once more in reverse; always False }
    function AmpliarOrden(var NuevaColumna: SmallInt): WordBool; safecall;
    { Replaces the query's order }
    procedure CambiaOrden(var NuevoOrden: WideString); safecall;
    { Whether there is a query }
    function Get_Creado: WordBool; safecall;
    { Creates the query from columns, tables, relations and initial clauses }
    function Crear(var MotorBD: Integer; var NombreObjeto: WideString; var UsarDistinct: WordBool; var ColumnasSELECT:
      OleVariant; var TablasFROM: WideString; var RelacionTablas: OleVariant; var CondicionWHEREInicial: WideString;
      var NumColumnasGROUPBY: SmallInt; var CondicionHAVINGInicial: WideString; var TextoORDERBYInicial: WideString;
      var TOP: Integer; var Idioma: Integer): WordBool; safecall;
    { Creates the query from its definition text }
    function CrearDesdeTextoDefinicion(var TextoDefinicion: WideString): WordBool; safecall;
    { The whole query as one text to be kept }
    function Get_TextoDefinicion: WideString; safecall;
    { What was added, in words for the user }
    function Get_CriterioActual: WideString; safecall;
    { Narrows the query by what a user typed for a column; False for what is no search }
    function InterpretarBusqueda(var NombreCampoRS: WideString; var TextoBusqueda: WideString; var Criterio:
      WideString): WordBool; safecall;
    { The current ORDER BY clause, or its list alone }
    function ParteOrder(var SinClausula: WordBool): WideString; safecall;
    { Takes away what was added }
    procedure RestauraOriginal(var RestaurarWhereYHaving: WordBool; var RestaurarOrder: WordBool); safecall;
    { The statement as it is now }
    function Get_SQL: WideString; safecall;
    { The statement as it was created }
    function Get_SQLOriginal: WideString; safecall;
    { The statement as it was created, without its order }
    function Get_SQLOriginalSinOrden: WideString; safecall;
    { The statement as it is now, without its order }
    function Get_SQLSinOrden: WideString; safecall;
    { Type letter of the column with this name in a record set }
    function TipoCampo(var NombreCampoRS: WideString): WideString; safecall;
    { Position of the column with this name in a record set; 0 for none }
    function NumColumna(var NombreCampoRS: WideString): SmallInt; safecall;
    { Number of columns }
    function NumColumnas: SmallInt; safecall;
    { Text of the caller's own }
    function Get_Tag: WideString; safecall;
    { Text of the caller's own }
    procedure Set_Tag(Valor: WideString); safecall;
    { Limit of rows; 0 for none }
    procedure Set_TOP(Valor: Integer); safecall;
    { Limit of rows; 0 for none }
    function Get_TOP: Integer; safecall;
    { Language number; writing also sets the library's language }
    procedure Set_Idioma(Valor: Integer); safecall;
    { Language number }
    function Get_Idioma: Integer; safecall;
    { Database engine; texts that are there do not change }
    procedure Set_MotorBD(Valor: MotoresBD); safecall;
    { Database engine; 0 when not set }
    function Get_MotorBD: MotoresBD; safecall;
    property CriterioActualCompleto: WideString read Get_CriterioActualCompleto write Set_CriterioActualCompleto;
    property Creado: WordBool read Get_Creado;
    property TextoDefinicion: WideString read Get_TextoDefinicion;
    property CriterioActual: WideString read Get_CriterioActual;
    property SQL: WideString read Get_SQL;
    property SQLOriginal: WideString read Get_SQLOriginal;
    property SQLOriginalSinOrden: WideString read Get_SQLOriginalSinOrden;
    property SQLSinOrden: WideString read Get_SQLSinOrden;
    property Tag: WideString read Get_Tag write Set_Tag;
    property TOP: Integer read Get_TOP write Set_TOP;
    property Idioma: Integer read Get_Idioma write Set_Idioma;
    property MotorBD: MotoresBD read Get_MotorBD write Set_MotorBD;
  end;

  { Query of one SELECT statement }
  _cSQL20 = interface(IDispatch)
    ['{86A157CE-9E1D-4DB0-BD1D-2F178CBF9FFB}']
    { Creates the query from columns, tables, relations and initial clauses }
    function iSQL20_Crear(var MotorBD: Integer; var NombreObjeto: WideString; var UsarDistinct: WordBool; var
      ColumnasSELECT: OleVariant; var TablasFROM: WideString; var RelacionTablas: OleVariant; var
      CondicionWHEREInicial: WideString; var NumColumnasGROUPBY: SmallInt; var CondicionHAVINGInicial: WideString; var
      TextoORDERBYInicial: WideString; var TOP: Integer; var Idioma: Integer): WordBool; safecall;
    { Name of the class }
    function Get_Name: WideString; safecall;
    { The statement as it was created }
    function Get_iSQL20_SQLOriginal: WideString; safecall;
    { The statement as it was created, without its order }
    function Get_iSQL20_SQLOriginalSinOrden: WideString; safecall;
    { The statement as it is now }
    function Get_iSQL20_SQL: WideString; safecall;
    { The statement as it is now, without its order }
    function Get_iSQL20_SQLSinOrden: WideString; safecall;
    { Narrows the query; False for an empty condition and for one that is there already }
    function iSQL20_AmpliarCondicionWhere(var Condicion: WideString; var Criterio: WideString): WordBool; safecall;
    { Narrows the groups; False for an empty condition and for one that is there already }
    function AmpliarCondicionHaving(var Condicion: WideString; var Criterio: WideString): WordBool; safecall;
    { Replaces the query's conditions; what was added goes }
    procedure CambiaCondicion(var NuevaCondicionWhere: WideString; var NuevaCondicionHaving: WideString); safecall;
    { Replaces the query's order }
    procedure iSQL20_CambiaOrden(var NuevoOrden: WideString); safecall;
    { Takes away what was added }
    procedure iSQL20_RestauraOriginal(var RestaurarWhereYHaving: WordBool; var RestaurarOrder: WordBool); safecall;
    { Makes what was added part of the statement as created }
    procedure iSQL20_AdoptaComoOriginal(var AdoptarWhere: WordBool; var AdoptarHaving: WordBool; var AdoptarOrder:
      WordBool); safecall;
    { The current ORDER BY clause, or its list alone }
    function iSQL20_ParteOrder(var SinClausula: WordBool): WideString; safecall;
    { The current WHERE clause, or its condition alone }
    function ParteWhere(var SoloCondicion: WordBool): WideString; safecall;
    { The current HAVING clause, or its condition alone }
    function ParteHaving(var SoloCondicion: WordBool): WideString; safecall;
    { Sorts by this column first, once more in reverse; always False }
    function iSQL20_AmpliarOrden(var NuevaColumna: SmallInt): WordBool; safecall;
    { Narrows the query by what a user typed for a column; False for what is no search }
    function iSQL20_InterpretarBusqueda(var NombreCampoRS: WideString; var TextoBusqueda: WideString; var Criterio:
      WideString): WordBool; safecall;
    { Type letter of the column with this name in a record set }
    function iSQL20_TipoCampo(var NombreCampoRS: WideString): WideString; safecall;
    { Expression of the column with this name in a record set }
    function ExpresionOriginal(var NombreCampoRS: WideString): WideString; safecall;
    { Whether there is a query }
    function Get_iSQL20_Creado: WordBool; safecall;
    { Text of the caller's own }
    function Get_iSQL20_Tag: WideString; safecall;
    { Text of the caller's own }
    procedure Set_iSQL20_Tag(Valor: WideString); safecall;
    { What was added, in words for the user }
    function Get_iSQL20_CriterioActual: WideString; safecall;
    { What was added to the query, as one text to be kept }
    function Get_iSQL20_CriterioActualCompleto: WideString; safecall;
    { Puts back what was added from such a text }
    procedure Set_iSQL20_CriterioActualCompleto(Valor: WideString); safecall;
    { Position of the column with this name in a record set; 0 for none }
    function iSQL20_NumColumna(var NombreCampoRS: WideString): SmallInt; safecall;
    { Creates the query from its definition text }
    function iSQL20_CrearDesdeTextoDefinicion(var TextoDefinicion: WideString): WordBool; safecall;
    { The whole query as one text to be kept }
    function Get_iSQL20_TextoDefinicion: WideString; safecall;
    { Number of columns }
    function iSQL20_NumColumnas: SmallInt; safecall;
    { Limit of rows; 0 for none }
    procedure Set_iSQL20_TOP(Valor: Integer); safecall;
    { Limit of rows; 0 for none }
    function Get_iSQL20_TOP: Integer; safecall;
    { Language number; writing also sets the library's language }
    procedure Set_iSQL20_Idioma(Valor: Integer); safecall;
    { Language number }
    function Get_iSQL20_Idioma: Integer; safecall;
    { Database engine; texts that are there do not change }
    procedure Set_iSQL20_MotorBD(Valor: MotoresBD); safecall;
    { Database engine; 0 when not set }
    function Get_iSQL20_MotorBD: MotoresBD; safecall;
    property Name: WideString read Get_Name;
    property iSQL20_SQLOriginal: WideString read Get_iSQL20_SQLOriginal;
    property iSQL20_SQLOriginalSinOrden: WideString read Get_iSQL20_SQLOriginalSinOrden;
    property iSQL20_SQL: WideString read Get_iSQL20_SQL;
    property iSQL20_SQLSinOrden: WideString read Get_iSQL20_SQLSinOrden;
    property iSQL20_Creado: WordBool read Get_iSQL20_Creado;
    property iSQL20_Tag: WideString read Get_iSQL20_Tag write Set_iSQL20_Tag;
    property iSQL20_CriterioActual: WideString read Get_iSQL20_CriterioActual;
    property iSQL20_CriterioActualCompleto: WideString read Get_iSQL20_CriterioActualCompleto write Set_iSQL20_CriterioActualCompleto;
    property iSQL20_TextoDefinicion: WideString read Get_iSQL20_TextoDefinicion;
    property iSQL20_TOP: Integer read Get_iSQL20_TOP write Set_iSQL20_TOP;
    property iSQL20_Idioma: Integer read Get_iSQL20_Idioma write Set_iSQL20_Idioma;
    property iSQL20_MotorBD: MotoresBD read Get_iSQL20_MotorBD write Set_iSQL20_MotorBD;
  end;

  { Query of several SELECT statements joined by UNION }
  _uSQL20 = interface(IDispatch)
    ['{54F7E510-C21E-4EDA-920D-7E68CA3884F6}']
    { Name of the class }
    function Get_Name: WideString; safecall;
    { What was added to the query, as one text to be kept }
    function Get_iSQL20_CriterioActualCompleto: WideString; safecall;
    { Puts back what was added from such a text }
    procedure Set_iSQL20_CriterioActualCompleto(Valor: WideString); safecall;
    { Makes what was added part of the statement as created }
    procedure iSQL20_AdoptaComoOriginal(var AdoptarWhere: WordBool; var AdoptarHaving: WordBool; var AdoptarOrder:
      WordBool); safecall;
    { Narrows the query; False for an empty condition and for one that is there already }
    function iSQL20_AmpliarCondicionWhere(var Condicion: WideString; var Criterio: WideString): WordBool; safecall;
    { Sorts by this column first, once more in reverse; always False }
    function iSQL20_AmpliarOrden(var NuevaColumna: SmallInt): WordBool; safecall;
    { Replaces the query's order }
    procedure iSQL20_CambiaOrden(var NuevoOrden: WideString); safecall;
    { Whether there is a query }
    function Get_iSQL20_Creado: WordBool; safecall;
    { Creates the query from columns, tables, relations and initial clauses }
    function iSQL20_Crear(var MotorBD: Integer; var NombreObjeto: WideString; var UsarDistinct: WordBool; var
      ColumnasSELECT: OleVariant; var TablasFROM: WideString; var RelacionTablas: OleVariant; var
      CondicionWHEREInicial: WideString; var NumColumnasGROUPBY: SmallInt; var CondicionHAVINGInicial: WideString; var
      TextoORDERBYInicial: WideString; var TOP: Integer; var Idioma: Integer): WordBool; safecall;
    { Creates the query from its definition text }
    function iSQL20_CrearDesdeTextoDefinicion(var TextoDefinicion: WideString): WordBool; safecall;
    { The whole query as one text to be kept }
    function Get_iSQL20_TextoDefinicion: WideString; safecall;
    { What was added, in words for the user }
    function Get_iSQL20_CriterioActual: WideString; safecall;
    { Narrows the query by what a user typed for a column; False for what is no search }
    function iSQL20_InterpretarBusqueda(var NombreCampoRS: WideString; var TextoBusqueda: WideString; var Criterio:
      WideString): WordBool; safecall;
    { The current ORDER BY clause, or its list alone }
    function iSQL20_ParteOrder(var SinClausula: WordBool): WideString; safecall;
    { Takes away what was added }
    procedure iSQL20_RestauraOriginal(var RestaurarWhereYHaving: WordBool; var RestaurarOrder: WordBool); safecall;
    { The statement as it is now }
    function Get_iSQL20_SQL: WideString; safecall;
    { The statement as it was created }
    function Get_iSQL20_SQLOriginal: WideString; safecall;
    { The statement as it was created, without its order }
    function Get_iSQL20_SQLOriginalSinOrden: WideString; safecall;
    { The statement as it is now, without its order }
    function Get_iSQL20_SQLSinOrden: WideString; safecall;
    { Type letter of the column with this name in a record set }
    function iSQL20_TipoCampo(var NombreCampoRS: WideString): WideString; safecall;
    { Position of the column with this name in a record set; 0 for none }
    function iSQL20_NumColumna(var NombreCampoRS: WideString): SmallInt; safecall;
    { Number of columns }
    function iSQL20_NumColumnas: SmallInt; safecall;
    { Text of the caller's own }
    function Get_iSQL20_Tag: WideString; safecall;
    { Text of the caller's own }
    procedure Set_iSQL20_Tag(Valor: WideString); safecall;
    { Limit of rows; 0 for none }
    procedure Set_iSQL20_TOP(Valor: Integer); safecall;
    { Limit of rows; 0 for none }
    function Get_iSQL20_TOP: Integer; safecall;
    { Language number; writing also sets the library's language }
    procedure Set_iSQL20_Idioma(Valor: Integer); safecall;
    { Language number }
    function Get_iSQL20_Idioma: Integer; safecall;
    { Database engine; texts that are there do not change }
    procedure Set_iSQL20_MotorBD(Valor: MotoresBD); safecall;
    { Database engine; 0 when not set }
    function Get_iSQL20_MotorBD: MotoresBD; safecall;
    property Name: WideString read Get_Name;
    property iSQL20_CriterioActualCompleto: WideString read Get_iSQL20_CriterioActualCompleto write Set_iSQL20_CriterioActualCompleto;
    property iSQL20_Creado: WordBool read Get_iSQL20_Creado;
    property iSQL20_TextoDefinicion: WideString read Get_iSQL20_TextoDefinicion;
    property iSQL20_CriterioActual: WideString read Get_iSQL20_CriterioActual;
    property iSQL20_SQL: WideString read Get_iSQL20_SQL;
    property iSQL20_SQLOriginal: WideString read Get_iSQL20_SQLOriginal;
    property iSQL20_SQLOriginalSinOrden: WideString read Get_iSQL20_SQLOriginalSinOrden;
    property iSQL20_SQLSinOrden: WideString read Get_iSQL20_SQLSinOrden;
    property iSQL20_Tag: WideString read Get_iSQL20_Tag write Set_iSQL20_Tag;
    property iSQL20_TOP: Integer read Get_iSQL20_TOP write Set_iSQL20_TOP;
    property iSQL20_Idioma: Integer read Get_iSQL20_Idioma write Set_iSQL20_Idioma;
    property iSQL20_MotorBD: MotoresBD read Get_iSQL20_MotorBD write Set_iSQL20_MotorBD;
  end;

  { Script runner }
  _QVRScr = interface(IDispatch)
    ['{B61FE2B6-C646-4E64-84E0-8397AED80B1E}']
    { Runs commands separated by GO lines in one transaction; True when the list ran to its end }
    function EjecutarComandos(var ID: WideString; var MotorBD: Integer; var TextosComandos: WideString; var
      CadenaConexion: WideString; var TextoMostrar: WideString): WordBool; safecall;
    { Runs one command on an open connection; False after the failure was reported }
    function Ejecutar1Comando(var Conexion: IDispatch; var TextoComando: WideString; var MotorBD: Integer): WordBool;
      safecall;
    { The engine's built-in administrator account }
    function UsuarioSegunMotor(var MotorBD: Integer): WideString; safecall;
    { Text of the scripts that create a database, ready to be run; empty when one cannot be read }
    function CargarDefinicion(var ID: WideString; var MotorBD: Integer; var Ruta: WideString; var NombreDefinicion:
      WideString; var NombreBaseOTablespace: WideString; var UsuarioQVRAdm: WideString; var ClaveUsuarioQVRAdm:
      WideString; var UsuarioQVRCli: WideString; var ClaveUsuarioQVRCli: WideString; var Encri: WordBool): WideString;
      safecall;
    { Text of the scripts that update a database from a version on; empty when there is none }
    function CargarActualizacion(var ID: WideString; var MotorBD: Integer; var Ruta: WideString; var Aplicacion:
      WideString; var VersionActual: Integer; var NombreBaseOTablespace: WideString; var UsuarioQVRAdm: WideString;
      var ClaveUsuarioQVRAdm: WideString; var UsuarioQVRCli: WideString; var ClaveUsuarioQVRCli: WideString; var
      Encri: WordBool): WideString; safecall;
  end;

  { List of typed, named values }
  _QVRprp = interface(IDispatch)
    ['{16D61E78-756E-463D-A7D4-1F40B9AC3BE3}']
    { Removes every property }
    procedure Borra; safecall;
    { Adds a property; type T text, N number, F date, L logical }
    procedure CreaPropiedad(var Tipo: WideString; var Nombre: WideString; var Valor: OleVariant); safecall;
    { Value of a property by its name or its position from 0; Empty for none }
    function Get_Item(var NombreOIndice: OleVariant): OleVariant; safecall;
    { Value of a property by its name or its position from 0; Empty for none }
    procedure Set_Item(var NombreOIndice: OleVariant; Valor: OleVariant); safecall;
    { Number of properties }
    function Get_NumPropiedades: Integer; safecall;
    { Name of the property at a position from 0; empty for none }
    function Get_NombrePropiedad(var Indice: Integer): WideString; safecall;
    property NumPropiedades: Integer read Get_NumPropiedades;
  end;


  { Version and location of the library }
  _OvDisp = dispinterface
    ['{EEA88F6F-600A-44FD-8569-9C5A1056019F}']
    function Version: Integer; dispid 1610809344;
    function CadenaVersion: WideString; dispid 1610809345;
    function Path: WideString; dispid 1610809346;
    function PathCompleto: WideString; dispid 1610809347;
  end;

  { Connection parameters, their protected file and their connection strings }
  _QVRcfpDisp = dispinterface
    ['{BAB7D9FF-33EB-4C08-A9BF-3DB89ADC461E}']
    function Asignar(var ID: WideString; var MotorBD: Integer; var Provider: WideString; var DataSource: WideString;
      var InitialCatalogOTablespace: WideString; var UsuarioAdm: WideString; var ClaveAdm: WideString; var UsuarioCli:
      WideString; var ClaveCli: WideString; var OtrosParametros: WideString): WordBool; dispid 1610809344;
    function Crear(var ID: WideString; var R: WideString; var A: WideString): WordBool; dispid 1610809345;
    function Guardar(var ID: WideString; var R: WideString; var A: WideString): WordBool; dispid 1610809346;
    function CadenaADO(var ID: WideString; var Adm: WordBool): WideString; dispid 1610809347;
    function CadenaADOUsuario(var Usuario: WideString; var Clave: WideString): WideString; dispid 1610809348;
    function TextoAValor(var TipoTNFL: WideString; var Texto: WideString): OleVariant; dispid 1610809349;
    function ValorATexto(var TipoTNFL: WideString; var Valor: OleVariant): WideString; dispid 1610809350;
    property Archivo: WideString readonly dispid 1745027079;
    property MotorBD: Integer readonly dispid 1745027080;
    property Provider: WideString readonly dispid 1745027081;
    property DataSource: WideString readonly dispid 1745027082;
    property InitialCatalogOTablespace: WideString readonly dispid 1745027083;
    property UsuarioAdm: WideString readonly dispid 1745027084;
    property UsuarioCli: WideString readonly dispid 1745027085;
    property OtrosParametros: WideString readonly dispid 1745027086;
    function ClaveAdm(var ID: WideString): WideString; dispid 1745027087;
    function ClaveCli(var ID: WideString): WideString; dispid 1745027088;
    function ComillasSQL(var Cadena: WideString): WideString; dispid 1610809361;
    function ExpSQL(var Valor: OleVariant): WideString; dispid 1610809362;
    function FechaSQL(var Fecha: OleVariant): WideString; dispid 1610809363;
    function HoraSQL(var Fecha: OleVariant): WideString; dispid 1610809364;
    function FechaHoraSQL(var Fecha: OleVariant): WideString; dispid 1610809365;
    function FechaSQLv(var Fecha: OleVariant): WideString; dispid 1610809366;
    function LogicoSQL(var Valor: WordBool): WideString; dispid 1610809367;
    function AhoraSQL: WideString; dispid 1610809368;
    function sqlEsTrue(var Campo: WideString): WideString; dispid 1610809369;
    function sqlEsFalse(var Campo: WideString): WideString; dispid 1610809370;
    function sqlFalse: WideString; dispid 1610809371;
    function CadenaParaLikeSQL(var Cadena: WideString; var ComodinInicial: WordBool; var ComodinFinal: WordBool):
      WideString; dispid 1610809372;
    function sqlFechaSistema: WideString; dispid 1610809373;
    function sqlTOP(var Numero: Integer): WideString; dispid 1610809374;
    function sqlRowNum(var Numero: Integer; var AnteponerAndSiProcede: WordBool): WideString; dispid 1610809375;
    function sqlWhereRelacionTablas(var mCampo1Campo2Relacion: OleVariant): WideString; dispid 1610809376;
    function sqlAlias(var Alias: WideString): WideString; dispid 1610809377;
    function sqlConcatenar(var Cadenas: OleVariant): WideString; dispid 1610809378;
    function sqlEsNulo(var CampoComprobar: WideString; var CampoAlternativo: WideString): WideString; dispid
      1610809379;
    function sqlCASE(var Campo: WideString; var ParejasValoresMasOmision: OleVariant): WideString; dispid 1610809380;
    function SqlINSERT(var NombreTabla: WideString; var MValores: OleVariant): WideString; dispid 1610809381;
    function SqlUPDATE(var NombreTabla: WideString; var NombreCampoClave: WideString; var Clave_cd: Integer; var
      MCampos: OleVariant; var MValores: OleVariant): WideString; dispid 1610809382;
    function SqlInsert2(var NombreTabla: WideString; var MCampos: OleVariant; var MValores: OleVariant): WideString;
      dispid 1610809383;
    function SqlUpdate2(var NombreTabla: WideString; var MCampos: OleVariant; var MValores: OleVariant; var Condicion:
      WideString): WideString; dispid 1610809384;
    function EjecutarProcSQL7(var Conexion: IDispatch; var NombreProc: WideString; var Parametros: OleVariant):
      WordBool; dispid 1610809385;
    function AgregarParametroADO(var Comando: IDispatch; var TipoSQLServer: WideString; var Nombre: WideString; var
      Valor: OleVariant; var Ancho: Integer; var Direction: Integer): WordBool; dispid 1610809386;
  end;

  { What every query offers: a statement as created beside what was added to it }
  _iSQL20Disp = dispinterface
    ['{FE0AC381-48B5-4AA1-A217-55DA8568159D}']
    property CriterioActualCompleto: WideString dispid 1745027072;
    procedure AdoptaComoOriginal(var AdoptarWhere: WordBool; var AdoptarHaving: WordBool; var AdoptarOrder: WordBool);
      dispid 1610809346;
    function AmpliarCondicionWhere(var Condicion: WideString; var Criterio: WideString): WordBool; dispid 1610809347;
    function AmpliarOrden(var NuevaColumna: SmallInt): WordBool; dispid 1610809348;
    procedure CambiaOrden(var NuevoOrden: WideString); dispid 1610809349;
    property Creado: WordBool readonly dispid 1745027078;
    function Crear(var MotorBD: Integer; var NombreObjeto: WideString; var UsarDistinct: WordBool; var ColumnasSELECT:
      OleVariant; var TablasFROM: WideString; var RelacionTablas: OleVariant; var CondicionWHEREInicial: WideString;
      var NumColumnasGROUPBY: SmallInt; var CondicionHAVINGInicial: WideString; var TextoORDERBYInicial: WideString;
      var TOP: Integer; var Idioma: Integer): WordBool; dispid 1610809351;
    function CrearDesdeTextoDefinicion(var TextoDefinicion: WideString): WordBool; dispid 1610809352;
    property TextoDefinicion: WideString readonly dispid 1745027081;
    property CriterioActual: WideString readonly dispid 1745027082;
    function InterpretarBusqueda(var NombreCampoRS: WideString; var TextoBusqueda: WideString; var Criterio:
      WideString): WordBool; dispid 1610809355;
    function ParteOrder(var SinClausula: WordBool): WideString; dispid 1610809356;
    procedure RestauraOriginal(var RestaurarWhereYHaving: WordBool; var RestaurarOrder: WordBool); dispid 1610809357;
    property SQL: WideString readonly dispid 1745027086;
    property SQLOriginal: WideString readonly dispid 1745027087;
    property SQLOriginalSinOrden: WideString readonly dispid 1745027088;
    property SQLSinOrden: WideString readonly dispid 1745027089;
    function TipoCampo(var NombreCampoRS: WideString): WideString; dispid 1610809362;
    function NumColumna(var NombreCampoRS: WideString): SmallInt; dispid 1610809363;
    function NumColumnas: SmallInt; dispid 1610809364;
    property Tag: WideString dispid 1745027093;
    property TOP: Integer dispid 1745027095;
    property Idioma: Integer dispid 1745027097;
    property MotorBD: Integer dispid 1745027099;
  end;

  { Query of one SELECT statement }
  _cSQL20Disp = dispinterface
    ['{86A157CE-9E1D-4DB0-BD1D-2F178CBF9FFB}']
    function iSQL20_Crear(var MotorBD: Integer; var NombreObjeto: WideString; var UsarDistinct: WordBool; var
      ColumnasSELECT: OleVariant; var TablasFROM: WideString; var RelacionTablas: OleVariant; var
      CondicionWHEREInicial: WideString; var NumColumnasGROUPBY: SmallInt; var CondicionHAVINGInicial: WideString; var
      TextoORDERBYInicial: WideString; var TOP: Integer; var Idioma: Integer): WordBool; dispid 1610809344;
    property Name: WideString readonly dispid 1745027073;
    property iSQL20_SQLOriginal: WideString readonly dispid 1745027074;
    property iSQL20_SQLOriginalSinOrden: WideString readonly dispid 1745027075;
    property iSQL20_SQL: WideString readonly dispid 1745027076;
    property iSQL20_SQLSinOrden: WideString readonly dispid 1745027077;
    function iSQL20_AmpliarCondicionWhere(var Condicion: WideString; var Criterio: WideString): WordBool; dispid
      1610809350;
    function AmpliarCondicionHaving(var Condicion: WideString; var Criterio: WideString): WordBool; dispid 1610809351;
    procedure CambiaCondicion(var NuevaCondicionWhere: WideString; var NuevaCondicionHaving: WideString); dispid
      1610809352;
    procedure iSQL20_CambiaOrden(var NuevoOrden: WideString); dispid 1610809353;
    procedure iSQL20_RestauraOriginal(var RestaurarWhereYHaving: WordBool; var RestaurarOrder: WordBool); dispid
      1610809354;
    procedure iSQL20_AdoptaComoOriginal(var AdoptarWhere: WordBool; var AdoptarHaving: WordBool; var AdoptarOrder:
      WordBool); dispid 1610809355;
    function iSQL20_ParteOrder(var SinClausula: WordBool): WideString; dispid 1610809356;
    function ParteWhere(var SoloCondicion: WordBool): WideString; dispid 1610809357;
    function ParteHaving(var SoloCondicion: WordBool): WideString; dispid 1610809358;
    function iSQL20_AmpliarOrden(var NuevaColumna: SmallInt): WordBool; dispid 1610809359;
    function iSQL20_InterpretarBusqueda(var NombreCampoRS: WideString; var TextoBusqueda: WideString; var Criterio:
      WideString): WordBool; dispid 1610809360;
    function iSQL20_TipoCampo(var NombreCampoRS: WideString): WideString; dispid 1610809361;
    function ExpresionOriginal(var NombreCampoRS: WideString): WideString; dispid 1610809362;
    property iSQL20_Creado: WordBool readonly dispid 1745027091;
    property iSQL20_Tag: WideString dispid 1745027092;
    property iSQL20_CriterioActual: WideString readonly dispid 1745027093;
    property iSQL20_CriterioActualCompleto: WideString dispid 1745027094;
    function iSQL20_NumColumna(var NombreCampoRS: WideString): SmallInt; dispid 1610809367;
    function iSQL20_CrearDesdeTextoDefinicion(var TextoDefinicion: WideString): WordBool; dispid 1610809368;
    property iSQL20_TextoDefinicion: WideString readonly dispid 1745027097;
    function iSQL20_NumColumnas: SmallInt; dispid 1610809370;
    property iSQL20_TOP: Integer dispid 1745027099;
    property iSQL20_Idioma: Integer dispid 1745027100;
    property iSQL20_MotorBD: Integer dispid 1745027101;
  end;

  { Query of several SELECT statements joined by UNION }
  _uSQL20Disp = dispinterface
    ['{54F7E510-C21E-4EDA-920D-7E68CA3884F6}']
    property Name: WideString readonly dispid 1745027072;
    property iSQL20_CriterioActualCompleto: WideString dispid 1745027073;
    procedure iSQL20_AdoptaComoOriginal(var AdoptarWhere: WordBool; var AdoptarHaving: WordBool; var AdoptarOrder:
      WordBool); dispid 1610809347;
    function iSQL20_AmpliarCondicionWhere(var Condicion: WideString; var Criterio: WideString): WordBool; dispid
      1610809348;
    function iSQL20_AmpliarOrden(var NuevaColumna: SmallInt): WordBool; dispid 1610809349;
    procedure iSQL20_CambiaOrden(var NuevoOrden: WideString); dispid 1610809350;
    property iSQL20_Creado: WordBool readonly dispid 1745027079;
    function iSQL20_Crear(var MotorBD: Integer; var NombreObjeto: WideString; var UsarDistinct: WordBool; var
      ColumnasSELECT: OleVariant; var TablasFROM: WideString; var RelacionTablas: OleVariant; var
      CondicionWHEREInicial: WideString; var NumColumnasGROUPBY: SmallInt; var CondicionHAVINGInicial: WideString; var
      TextoORDERBYInicial: WideString; var TOP: Integer; var Idioma: Integer): WordBool; dispid 1610809352;
    function iSQL20_CrearDesdeTextoDefinicion(var TextoDefinicion: WideString): WordBool; dispid 1610809353;
    property iSQL20_TextoDefinicion: WideString readonly dispid 1745027082;
    property iSQL20_CriterioActual: WideString readonly dispid 1745027083;
    function iSQL20_InterpretarBusqueda(var NombreCampoRS: WideString; var TextoBusqueda: WideString; var Criterio:
      WideString): WordBool; dispid 1610809356;
    function iSQL20_ParteOrder(var SinClausula: WordBool): WideString; dispid 1610809357;
    procedure iSQL20_RestauraOriginal(var RestaurarWhereYHaving: WordBool; var RestaurarOrder: WordBool); dispid
      1610809358;
    property iSQL20_SQL: WideString readonly dispid 1745027087;
    property iSQL20_SQLOriginal: WideString readonly dispid 1745027088;
    property iSQL20_SQLOriginalSinOrden: WideString readonly dispid 1745027089;
    property iSQL20_SQLSinOrden: WideString readonly dispid 1745027090;
    function iSQL20_TipoCampo(var NombreCampoRS: WideString): WideString; dispid 1610809363;
    function iSQL20_NumColumna(var NombreCampoRS: WideString): SmallInt; dispid 1610809364;
    function iSQL20_NumColumnas: SmallInt; dispid 1610809365;
    property iSQL20_Tag: WideString dispid 1745027094;
    property iSQL20_TOP: Integer dispid 1745027096;
    property iSQL20_Idioma: Integer dispid 1745027098;
    property iSQL20_MotorBD: Integer dispid 1745027100;
  end;

  { Script runner }
  _QVRScrDisp = dispinterface
    ['{B61FE2B6-C646-4E64-84E0-8397AED80B1E}']
    function EjecutarComandos(var ID: WideString; var MotorBD: Integer; var TextosComandos: WideString; var
      CadenaConexion: WideString; var TextoMostrar: WideString): WordBool; dispid 1610809344;
    function Ejecutar1Comando(var Conexion: IDispatch; var TextoComando: WideString; var MotorBD: Integer): WordBool;
      dispid 1610809345;
    function UsuarioSegunMotor(var MotorBD: Integer): WideString; dispid 1610809346;
    function CargarDefinicion(var ID: WideString; var MotorBD: Integer; var Ruta: WideString; var NombreDefinicion:
      WideString; var NombreBaseOTablespace: WideString; var UsuarioQVRAdm: WideString; var ClaveUsuarioQVRAdm:
      WideString; var UsuarioQVRCli: WideString; var ClaveUsuarioQVRCli: WideString; var Encri: WordBool): WideString;
      dispid 1610809347;
    function CargarActualizacion(var ID: WideString; var MotorBD: Integer; var Ruta: WideString; var Aplicacion:
      WideString; var VersionActual: Integer; var NombreBaseOTablespace: WideString; var UsuarioQVRAdm: WideString;
      var ClaveUsuarioQVRAdm: WideString; var UsuarioQVRCli: WideString; var ClaveUsuarioQVRCli: WideString; var
      Encri: WordBool): WideString; dispid 1610809348;
  end;

  { List of typed, named values }
  _QVRprpDisp = dispinterface
    ['{16D61E78-756E-463D-A7D4-1F40B9AC3BE3}']
    procedure Borra; dispid 1610809344;
    procedure CreaPropiedad(var Tipo: WideString; var Nombre: WideString; var Valor: OleVariant); dispid 1610809345;
    function Item(var NombreOIndice: OleVariant): OleVariant; dispid 0;
    property NumPropiedades: Integer readonly dispid 1745027075;
    function NombrePropiedad(var Indice: Integer): WideString; dispid 1745027076;
  end;

  { Events of the script runner }
  __QVRScr = dispinterface
    ['{2C1D5E0F-CC8E-4474-B992-43AB2C4019FB}']
    procedure Progreso(var Mensaje: WideString); dispid 1;
    procedure Terminado(var Exito: WordBool); dispid 2;
  end;


  CoOv = class
    class function Create: _Ov;
    class function CreateRemote(const MachineName: WideString): _Ov;
  end;

  CoQVRcfp = class
    class function Create: _QVRcfp;
    class function CreateRemote(const MachineName: WideString): _QVRcfp;
  end;

  CoQVRScr = class
    class function Create: _QVRScr;
    class function CreateRemote(const MachineName: WideString): _QVRScr;
  end;

  CoQVRprp = class
    class function Create: _QVRprp;
    class function CreateRemote(const MachineName: WideString): _QVRprp;
  end;

  CocSQL20 = class
    class function Create: _cSQL20;
    class function CreateRemote(const MachineName: WideString): _cSQL20;
  end;

  CouSQL20 = class
    class function Create: _uSQL20;
    class function CreateRemote(const MachineName: WideString): _uSQL20;
  end;


  TQVRScrProgreso = procedure(Sender: TObject; const Mensaje: WideString) of object;
  TQVRScrTerminado = procedure(Sender: TObject; Exito: Boolean) of object;

  { What every query offers }
  TiSQL20 = class(TObject)
  protected
    FObject: _iSQL20;
    function GetCriterioActualCompleto: WideString;
    procedure SetCriterioActualCompleto(const Valor: WideString);
    function GetCreado: Boolean;
    function GetTextoDefinicion: WideString;
    function GetCriterioActual: WideString;
    function GetSQL: WideString;
    function GetSQLOriginal: WideString;
    function GetSQLOriginalSinOrden: WideString;
    function GetSQLSinOrden: WideString;
    function GetTag: WideString;
    procedure SetTag(const Valor: WideString);
    procedure SetTOP(const Valor: Integer);
    function GetTOP: Integer;
    procedure SetIdioma(const Valor: Integer);
    function GetIdioma: Integer;
    procedure SetMotorBD(const Valor: MotoresBD);
    function GetMotorBD: MotoresBD;
  public
    { Makes what was added part of the statement as created }
    procedure AdoptaComoOriginal(const AdoptarWhere: Boolean; const AdoptarHaving: Boolean; const AdoptarOrder:
      Boolean);
    { Narrows the query; False for an empty condition and for one that is there already }
    function AmpliarCondicionWhere(const Condicion: WideString; const Criterio: WideString = ''): Boolean;
    { Sorts by this column first, once more in reverse; always False }
    function AmpliarOrden(const NuevaColumna: SmallInt): Boolean;
    { Replaces the query's order }
    procedure CambiaOrden(const NuevoOrden: WideString);
    { Creates the query from columns, tables, relations and initial clauses }
    function Crear(const MotorBD: Integer; const NombreObjeto: WideString; const UsarDistinct: Boolean; const
      ColumnasSELECT: OleVariant; const TablasFROM: WideString; const RelacionTablas: OleVariant; const
      CondicionWHEREInicial: WideString = ''; const NumColumnasGROUPBY: SmallInt = 0; const CondicionHAVINGInicial:
      WideString = ''; const TextoORDERBYInicial: WideString = ''; const TOP: Integer = 0; const Idioma: Integer = 0):
      Boolean;
    { Creates the query from its definition text }
    function CrearDesdeTextoDefinicion(const TextoDefinicion: WideString): Boolean;
    { Narrows the query by what a user typed for a column; False for what is no search }
    function InterpretarBusqueda(const NombreCampoRS: WideString; const TextoBusqueda: WideString; const Criterio:
      WideString = ''): Boolean;
    { The current ORDER BY clause, or its list alone }
    function ParteOrder(const SinClausula: Boolean = False): WideString;
    { Takes away what was added }
    procedure RestauraOriginal(const RestaurarWhereYHaving: Boolean; const RestaurarOrder: Boolean);
    { Type letter of the column with this name in a record set }
    function TipoCampo(const NombreCampoRS: WideString): WideString;
    { Position of the column with this name in a record set; 0 for none }
    function NumColumna(const NombreCampoRS: WideString): SmallInt;
    { Number of columns }
    function NumColumnas: SmallInt;
    { What was added to the query, as one text to be kept }
    property CriterioActualCompleto: WideString read GetCriterioActualCompleto write SetCriterioActualCompleto;
    { Whether there is a query }
    property Creado: Boolean read GetCreado;
    { The whole query as one text to be kept }
    property TextoDefinicion: WideString read GetTextoDefinicion;
    { What was added, in words for the user }
    property CriterioActual: WideString read GetCriterioActual;
    { The statement as it is now }
    property SQL: WideString read GetSQL;
    { The statement as it was created }
    property SQLOriginal: WideString read GetSQLOriginal;
    { The statement as it was created, without its order }
    property SQLOriginalSinOrden: WideString read GetSQLOriginalSinOrden;
    { The statement as it is now, without its order }
    property SQLSinOrden: WideString read GetSQLSinOrden;
    { Text of the caller's own }
    property Tag: WideString read GetTag write SetTag;
    { Limit of rows; 0 for none }
    property TOP: Integer read GetTOP write SetTOP;
    { Language number }
    property Idioma: Integer read GetIdioma write SetIdioma;
    { Database engine; 0 when not set }
    property MotorBD: MotoresBD read GetMotorBD write SetMotorBD;
    { The object itself }
    property Intf: _iSQL20 read FObject;
  end;

  { Version and location of the library }
  TOv = class(TObject)
  private
    FObject: _Ov;
  public
    constructor Create;
    { Version as one number: 2.10.24 is 21024 }
    function Version: Integer;
    { Version as text: 2.10.24 }
    function CadenaVersion: WideString;
    { Folder of the library file, without a separator at its end }
    function Path: WideString;
    { Path of the library file, ending in .dll }
    function PathCompleto: WideString;
    { The object itself }
    property Intf: _Ov read FObject;
  end;

  { Connection parameters and SQL of the configured engine }
  TQVRcfp = class(TObject)
  private
    FObject: _QVRcfp;
    function GetArchivo: WideString;
    function GetMotorBD: MotoresBD;
    function GetProvider: WideString;
    function GetDataSource: WideString;
    function GetInitialCatalogOTablespace: WideString;
    function GetUsuarioAdm: WideString;
    function GetUsuarioCli: WideString;
    function GetOtrosParametros: WideString;
    function GetClaveAdm(const ID: WideString): WideString;
    function GetClaveCli(const ID: WideString): WideString;
  public
    constructor Create;
    { Takes over connection parameters; True when done }
    function Asignar(const ID: WideString; const MotorBD: MotoresBD; const Provider: WideString; const DataSource:
      WideString; const InitialCatalogOTablespace: WideString; const UsuarioAdm: WideString; const ClaveAdm:
      WideString; const UsuarioCli: WideString; const ClaveCli: WideString; const OtrosParametros: WideString):
      Boolean;
    { Loads file A.cfp of folder R; False and empty when it is missing, damaged or of another identification }
    function Crear(const ID: WideString; const R: WideString; const A: WideString): Boolean;
    { Writes the parameters to file A.cfp of folder R; False when that fails }
    function Guardar(const ID: WideString; const R: WideString; const A: WideString): Boolean;
    { OLE DB connection string with the administrator's or the client's account }
    function CadenaADO(const ID: WideString; const Adm: Boolean): WideString;
    { OLE DB connection string with this account }
    function CadenaADOUsuario(const Usuario: WideString; const Clave: WideString): WideString;
    { Value of a typed text; type T text, N number, F date, L logical }
    function TextoAValor(const TipoTNFL: WideString; const Texto: WideString): OleVariant;
    { Typed text of a value; type T text, N number, F date, L logical }
    function ValorATexto(const TipoTNFL: WideString; const Valor: OleVariant): WideString;
    { Text in quotes, its own quotes doubled }
    function ComillasSQL(const Cadena: WideString): WideString;
    { Literal of a value, chosen by its type }
    function ExpSQL(const Valor: OleVariant): WideString;
    { Date literal; Null for what is no date }
    function FechaSQL(const Fecha: OleVariant): WideString;
    { Time literal; Null for what is no date }
    function HoraSQL(const Fecha: OleVariant): WideString;
    { Date and time literal, or the clock for Ahora; Null for what is no date }
    function FechaHoraSQL(const Fecha: OleVariant): WideString;
    { Date, time or date and time literal, the narrowest that holds the value }
    function FechaSQLv(const Fecha: OleVariant): WideString;
    { Truth literal }
    function LogicoSQL(const Valor: Boolean): WideString;
    { The server's clock as an expression }
    function AhoraSQL: WideString;
    { Condition that the field is true }
    function sqlEsTrue(const Campo: WideString): WideString;
    { Condition that the field is false }
    function sqlEsFalse(const Campo: WideString): WideString;
    { The false constant }
    function sqlFalse: WideString;
    { Quoted LIKE pattern of a text with * and ? }
    function CadenaParaLikeSQL(const Cadena: WideString; const ComodinInicial: Boolean = False; const ComodinFinal:
      Boolean = False): WideString;
    { Statement that reads the server's clock into a column FechaSistema }
    function sqlFechaSistema: WideString;
    { Limit of rows before the select list; empty for Oracle }
    function sqlTOP(const Numero: Integer): WideString;
    { Limit of rows as a condition; empty but for Oracle }
    function sqlRowNum(const Numero: Integer; const AnteponerAndSiProcede: Boolean): WideString;
    { Join condition for triples of column, column and relation I, L or R }
    function sqlWhereRelacionTablas(const mCampo1Campo2Relacion: OleVariant): WideString;
    { Name of a column in the result }
    function sqlAlias(const Alias: WideString): WideString;
    { Concatenation of expressions }
    function sqlConcatenar(const Cadenas: OleVariant): WideString;
    { The field, or the alternative where it is null }
    function sqlEsNulo(const CampoComprobar: WideString; const CampoAlternativo: WideString): WideString;
    { Field mapped by pairs of value and result, an odd last one being the default }
    function sqlCASE(const Campo: WideString; const ParejasValoresMasOmision: OleVariant): WideString;
    { INSERT statement without a list of columns }
    function SqlINSERT(const NombreTabla: WideString; const MValores: OleVariant): WideString;
    { UPDATE statement for the row with this whole-number key }
    function SqlUPDATE(const NombreTabla: WideString; const NombreCampoClave: WideString; const Clave_cd: Integer;
      const MCampos: OleVariant; const MValores: OleVariant): WideString;
    { INSERT statement with a list of columns }
    function SqlInsert2(const NombreTabla: WideString; const MCampos: OleVariant; const MValores: OleVariant):
      WideString;
    { UPDATE statement with a condition of any form }
    function SqlUpdate2(const NombreTabla: WideString; const MCampos: OleVariant; const MValores: OleVariant; const
      Condicion: WideString): WideString;
    { Calls a stored procedure of SQL Server; output values come back in the array }
    function EjecutarProcSQL7(const Conexion: IDispatch; const NombreProc: WideString; var Parametros: OleVariant):
      Boolean;
    { Appends a parameter whose type fits the engine to a command }
    function AgregarParametroADO(const Comando: IDispatch; const TipoSQLServer: WideString; const Nombre: WideString;
      const Valor: OleVariant; const Ancho: Integer = 0; const Direction: TOleEnum = 1): Boolean;
    { Name of the file that the parameters came from or were saved to }
    property Archivo: WideString read GetArchivo;
    { Database engine; 0 when not set }
    property MotorBD: MotoresBD read GetMotorBD;
    { OLE DB provider }
    property Provider: WideString read GetProvider;
    { Database file, server or service name }
    property DataSource: WideString read GetDataSource;
    { SQL Server catalogue or Oracle tablespace }
    property InitialCatalogOTablespace: WideString read GetInitialCatalogOTablespace;
    { Administrator user }
    property UsuarioAdm: WideString read GetUsuarioAdm;
    { Client user }
    property UsuarioCli: WideString read GetUsuarioCli;
    { Further connection options, appended as they stand }
    property OtrosParametros: WideString read GetOtrosParametros;
    { Administrator password }
    property ClaveAdm[const ID: WideString]: WideString read GetClaveAdm;
    { Client password }
    property ClaveCli[const ID: WideString]: WideString read GetClaveCli;
    { The object itself }
    property Intf: _QVRcfp read FObject;
  end;

  { Script runner }
  TQVRScr = class(TObject)
  private
    FObject: _QVRScr;
    FSink: IUnknown;
    FCookie: {$ifdef FPC}LongWord{$else}LongInt{$endif};
    FOnProgreso: TQVRScrProgreso;
    FOnTerminado: TQVRScrTerminado;
  public
    constructor Create;
    destructor Destroy; override;
    { Runs commands separated by GO lines in one transaction; True when the list ran to its end }
    function EjecutarComandos(const ID: WideString; const MotorBD: Integer; const TextosComandos: WideString; const
      CadenaConexion: WideString; var TextoMostrar: WideString): Boolean;
    { Runs one command on an open connection; False after the failure was reported }
    function Ejecutar1Comando(const Conexion: IDispatch; const TextoComando: WideString; const MotorBD: Integer):
      Boolean;
    { The engine's built-in administrator account }
    function UsuarioSegunMotor(const MotorBD: Integer): WideString;
    { Text of the scripts that create a database, ready to be run; empty when one cannot be read }
    function CargarDefinicion(const ID: WideString; const MotorBD: Integer; const Ruta: WideString; const
      NombreDefinicion: WideString; const NombreBaseOTablespace: WideString; const UsuarioQVRAdm: WideString; const
      ClaveUsuarioQVRAdm: WideString; const UsuarioQVRCli: WideString; const ClaveUsuarioQVRCli: WideString; const
      Encri: Boolean): WideString;
    { Text of the scripts that update a database from a version on; empty when there is none }
    function CargarActualizacion(const ID: WideString; const MotorBD: Integer; const Ruta: WideString; const
      Aplicacion: WideString; const VersionActual: Integer; const NombreBaseOTablespace: WideString; const
      UsuarioQVRAdm: WideString; const ClaveUsuarioQVRAdm: WideString; const UsuarioQVRCli: WideString; const
      ClaveUsuarioQVRCli: WideString; const Encri: Boolean): WideString;
    property OnProgreso: TQVRScrProgreso read FOnProgreso write FOnProgreso;
    property OnTerminado: TQVRScrTerminado read FOnTerminado write FOnTerminado;
    { The object itself }
    property Intf: _QVRScr read FObject;
  end;

  { List of typed, named values }
  TQVRprp = class(TObject)
  private
    FObject: _QVRprp;
    function GetItem(const NombreOIndice: OleVariant): OleVariant;
    procedure SetItem(const NombreOIndice: OleVariant; const Valor: OleVariant);
    function GetNumPropiedades: Integer;
    function GetNombrePropiedad(const Indice: Integer): WideString;
  public
    constructor Create;
    { Removes every property }
    procedure Borra;
    { Adds a property; type T text, N number, F date, L logical }
    procedure CreaPropiedad(const Tipo: WideString; const Nombre: WideString; const Valor: OleVariant);
    { Value of a property by its name or its position from 0; Empty for none }
    property Item[const NombreOIndice: OleVariant]: OleVariant read GetItem write SetItem; default;
    { Number of properties }
    property NumPropiedades: Integer read GetNumPropiedades;
    { Name of the property at a position from 0; empty for none }
    property NombrePropiedad[const Indice: Integer]: WideString read GetNombrePropiedad;
    { The object itself }
    property Intf: _QVRprp read FObject;
  end;

  { Query of one SELECT statement }
  TcSQL20 = class(TiSQL20)
  private
    FOwn: _cSQL20;
    function GetName: WideString;
  public
    constructor Create;
    { Narrows the groups; False for an empty condition and for one that is there already }
    function AmpliarCondicionHaving(const Condicion: WideString; const Criterio: WideString = ''): Boolean;
    { Replaces the query's conditions; what was added goes }
    procedure CambiaCondicion(const NuevaCondicionWhere: WideString; const NuevaCondicionHaving: WideString);
    { The current WHERE clause, or its condition alone }
    function ParteWhere(const SoloCondicion: Boolean = False): WideString;
    { The current HAVING clause, or its condition alone }
    function ParteHaving(const SoloCondicion: Boolean = False): WideString;
    { Expression of the column with this name in a record set }
    function ExpresionOriginal(const NombreCampoRS: WideString): WideString;
    { Name of the class }
    property Name: WideString read GetName;
    { The object itself }
    property Own: _cSQL20 read FOwn;
  end;

  { Query of several SELECT statements joined by UNION }
  TuSQL20 = class(TiSQL20)
  private
    FOwn: _uSQL20;
    function GetName: WideString;
  public
    constructor Create;
    { Name of the class }
    property Name: WideString read GetName;
    { The object itself }
    property Own: _uSQL20 read FOwn;
  end;


implementation

class function CoOv.Create: _Ov;
begin
  Result := CreateComObject(CLASS_Ov) as _Ov;
end;

class function CoOv.CreateRemote(const MachineName: WideString): _Ov;
begin
  Result := CreateRemoteComObject(MachineName, CLASS_Ov) as _Ov;
end;

class function CoQVRcfp.Create: _QVRcfp;
begin
  Result := CreateComObject(CLASS_QVRcfp) as _QVRcfp;
end;

class function CoQVRcfp.CreateRemote(const MachineName: WideString): _QVRcfp;
begin
  Result := CreateRemoteComObject(MachineName, CLASS_QVRcfp) as _QVRcfp;
end;

class function CoQVRScr.Create: _QVRScr;
begin
  Result := CreateComObject(CLASS_QVRScr) as _QVRScr;
end;

class function CoQVRScr.CreateRemote(const MachineName: WideString): _QVRScr;
begin
  Result := CreateRemoteComObject(MachineName, CLASS_QVRScr) as _QVRScr;
end;

class function CoQVRprp.Create: _QVRprp;
begin
  Result := CreateComObject(CLASS_QVRprp) as _QVRprp;
end;

class function CoQVRprp.CreateRemote(const MachineName: WideString): _QVRprp;
begin
  Result := CreateRemoteComObject(MachineName, CLASS_QVRprp) as _QVRprp;
end;

class function CocSQL20.Create: _cSQL20;
begin
  Result := CreateComObject(CLASS_cSQL20) as _cSQL20;
end;

class function CocSQL20.CreateRemote(const MachineName: WideString): _cSQL20;
begin
  Result := CreateRemoteComObject(MachineName, CLASS_cSQL20) as _cSQL20;
end;

class function CouSQL20.Create: _uSQL20;
begin
  Result := CreateComObject(CLASS_uSQL20) as _uSQL20;
end;

class function CouSQL20.CreateRemote(const MachineName: WideString): _uSQL20;
begin
  Result := CreateRemoteComObject(MachineName, CLASS_uSQL20) as _uSQL20;
end;


function TiSQL20.GetCriterioActualCompleto: WideString;
begin
  Result := FObject.Get_CriterioActualCompleto;
end;

procedure TiSQL20.SetCriterioActualCompleto(const Valor: WideString);
begin
  FObject.Set_CriterioActualCompleto(Valor);
end;

procedure TiSQL20.AdoptaComoOriginal(const AdoptarWhere: Boolean; const AdoptarHaving: Boolean; const AdoptarOrder:
  Boolean);
var
  AdoptarWhere_: WordBool;
  AdoptarHaving_: WordBool;
  AdoptarOrder_: WordBool;
begin
  AdoptarWhere_ := AdoptarWhere;
  AdoptarHaving_ := AdoptarHaving;
  AdoptarOrder_ := AdoptarOrder;
  FObject.AdoptaComoOriginal(AdoptarWhere_, AdoptarHaving_, AdoptarOrder_);
end;

function TiSQL20.AmpliarCondicionWhere(const Condicion: WideString; const Criterio: WideString): Boolean;
var
  Condicion_: WideString;
  Criterio_: WideString;
begin
  Condicion_ := Condicion;
  Criterio_ := Criterio;
  Result := FObject.AmpliarCondicionWhere(Condicion_, Criterio_);
end;

function TiSQL20.AmpliarOrden(const NuevaColumna: SmallInt): Boolean;
var
  NuevaColumna_: SmallInt;
begin
  NuevaColumna_ := NuevaColumna;
  Result := FObject.AmpliarOrden(NuevaColumna_);
end;

procedure TiSQL20.CambiaOrden(const NuevoOrden: WideString);
var
  NuevoOrden_: WideString;
begin
  NuevoOrden_ := NuevoOrden;
  FObject.CambiaOrden(NuevoOrden_);
end;

function TiSQL20.GetCreado: Boolean;
begin
  Result := FObject.Get_Creado;
end;

function TiSQL20.Crear(const MotorBD: Integer; const NombreObjeto: WideString; const UsarDistinct: Boolean; const
  ColumnasSELECT: OleVariant; const TablasFROM: WideString; const RelacionTablas: OleVariant; const
  CondicionWHEREInicial: WideString; const NumColumnasGROUPBY: SmallInt; const CondicionHAVINGInicial: WideString;
  const TextoORDERBYInicial: WideString; const TOP: Integer; const Idioma: Integer): Boolean;
var
  MotorBD_: Integer;
  NombreObjeto_: WideString;
  UsarDistinct_: WordBool;
  ColumnasSELECT_: OleVariant;
  TablasFROM_: WideString;
  RelacionTablas_: OleVariant;
  CondicionWHEREInicial_: WideString;
  NumColumnasGROUPBY_: SmallInt;
  CondicionHAVINGInicial_: WideString;
  TextoORDERBYInicial_: WideString;
  TOP_: Integer;
  Idioma_: Integer;
begin
  MotorBD_ := MotorBD;
  NombreObjeto_ := NombreObjeto;
  UsarDistinct_ := UsarDistinct;
  ColumnasSELECT_ := ColumnasSELECT;
  TablasFROM_ := TablasFROM;
  RelacionTablas_ := RelacionTablas;
  CondicionWHEREInicial_ := CondicionWHEREInicial;
  NumColumnasGROUPBY_ := NumColumnasGROUPBY;
  CondicionHAVINGInicial_ := CondicionHAVINGInicial;
  TextoORDERBYInicial_ := TextoORDERBYInicial;
  TOP_ := TOP;
  Idioma_ := Idioma;
  Result := FObject.Crear(MotorBD_, NombreObjeto_, UsarDistinct_, ColumnasSELECT_, TablasFROM_, RelacionTablas_,
    CondicionWHEREInicial_, NumColumnasGROUPBY_, CondicionHAVINGInicial_, TextoORDERBYInicial_, TOP_, Idioma_);
end;

function TiSQL20.CrearDesdeTextoDefinicion(const TextoDefinicion: WideString): Boolean;
var
  TextoDefinicion_: WideString;
begin
  TextoDefinicion_ := TextoDefinicion;
  Result := FObject.CrearDesdeTextoDefinicion(TextoDefinicion_);
end;

function TiSQL20.GetTextoDefinicion: WideString;
begin
  Result := FObject.Get_TextoDefinicion;
end;

function TiSQL20.GetCriterioActual: WideString;
begin
  Result := FObject.Get_CriterioActual;
end;

function TiSQL20.InterpretarBusqueda(const NombreCampoRS: WideString; const TextoBusqueda: WideString; const Criterio:
  WideString): Boolean;
var
  NombreCampoRS_: WideString;
  TextoBusqueda_: WideString;
  Criterio_: WideString;
begin
  NombreCampoRS_ := NombreCampoRS;
  TextoBusqueda_ := TextoBusqueda;
  Criterio_ := Criterio;
  Result := FObject.InterpretarBusqueda(NombreCampoRS_, TextoBusqueda_, Criterio_);
end;

function TiSQL20.ParteOrder(const SinClausula: Boolean): WideString;
var
  SinClausula_: WordBool;
begin
  SinClausula_ := SinClausula;
  Result := FObject.ParteOrder(SinClausula_);
end;

procedure TiSQL20.RestauraOriginal(const RestaurarWhereYHaving: Boolean; const RestaurarOrder: Boolean);
var
  RestaurarWhereYHaving_: WordBool;
  RestaurarOrder_: WordBool;
begin
  RestaurarWhereYHaving_ := RestaurarWhereYHaving;
  RestaurarOrder_ := RestaurarOrder;
  FObject.RestauraOriginal(RestaurarWhereYHaving_, RestaurarOrder_);
end;

function TiSQL20.GetSQL: WideString;
begin
  Result := FObject.Get_SQL;
end;

function TiSQL20.GetSQLOriginal: WideString;
begin
  Result := FObject.Get_SQLOriginal;
end;

function TiSQL20.GetSQLOriginalSinOrden: WideString;
begin
  Result := FObject.Get_SQLOriginalSinOrden;
end;

function TiSQL20.GetSQLSinOrden: WideString;
begin
  Result := FObject.Get_SQLSinOrden;
end;

function TiSQL20.TipoCampo(const NombreCampoRS: WideString): WideString;
var
  NombreCampoRS_: WideString;
begin
  NombreCampoRS_ := NombreCampoRS;
  Result := FObject.TipoCampo(NombreCampoRS_);
end;

function TiSQL20.NumColumna(const NombreCampoRS: WideString): SmallInt;
var
  NombreCampoRS_: WideString;
begin
  NombreCampoRS_ := NombreCampoRS;
  Result := FObject.NumColumna(NombreCampoRS_);
end;

function TiSQL20.NumColumnas: SmallInt;
begin
  Result := FObject.NumColumnas;
end;

function TiSQL20.GetTag: WideString;
begin
  Result := FObject.Get_Tag;
end;

procedure TiSQL20.SetTag(const Valor: WideString);
begin
  FObject.Set_Tag(Valor);
end;

procedure TiSQL20.SetTOP(const Valor: Integer);
begin
  FObject.Set_TOP(Valor);
end;

function TiSQL20.GetTOP: Integer;
begin
  Result := FObject.Get_TOP;
end;

procedure TiSQL20.SetIdioma(const Valor: Integer);
begin
  FObject.Set_Idioma(Valor);
end;

function TiSQL20.GetIdioma: Integer;
begin
  Result := FObject.Get_Idioma;
end;

procedure TiSQL20.SetMotorBD(const Valor: MotoresBD);
begin
  FObject.Set_MotorBD(Valor);
end;

function TiSQL20.GetMotorBD: MotoresBD;
begin
  Result := FObject.Get_MotorBD;
end;

constructor TOv.Create;
begin
  inherited Create;
  FObject := CoOv.Create;
end;

function TOv.Version: Integer;
begin
  Result := FObject.Version;
end;

function TOv.CadenaVersion: WideString;
begin
  Result := FObject.CadenaVersion;
end;

function TOv.Path: WideString;
begin
  Result := FObject.Path;
end;

function TOv.PathCompleto: WideString;
begin
  Result := FObject.PathCompleto;
end;

constructor TQVRcfp.Create;
begin
  inherited Create;
  FObject := CoQVRcfp.Create;
end;

function TQVRcfp.Asignar(const ID: WideString; const MotorBD: MotoresBD; const Provider: WideString; const DataSource:
  WideString; const InitialCatalogOTablespace: WideString; const UsuarioAdm: WideString; const ClaveAdm: WideString;
  const UsuarioCli: WideString; const ClaveCli: WideString; const OtrosParametros: WideString): Boolean;
var
  ID_: WideString;
  MotorBD_: MotoresBD;
  Provider_: WideString;
  DataSource_: WideString;
  InitialCatalogOTablespace_: WideString;
  UsuarioAdm_: WideString;
  ClaveAdm_: WideString;
  UsuarioCli_: WideString;
  ClaveCli_: WideString;
  OtrosParametros_: WideString;
begin
  ID_ := ID;
  MotorBD_ := MotorBD;
  Provider_ := Provider;
  DataSource_ := DataSource;
  InitialCatalogOTablespace_ := InitialCatalogOTablespace;
  UsuarioAdm_ := UsuarioAdm;
  ClaveAdm_ := ClaveAdm;
  UsuarioCli_ := UsuarioCli;
  ClaveCli_ := ClaveCli;
  OtrosParametros_ := OtrosParametros;
  Result := FObject.Asignar(ID_, MotorBD_, Provider_, DataSource_, InitialCatalogOTablespace_, UsuarioAdm_, ClaveAdm_,
    UsuarioCli_, ClaveCli_, OtrosParametros_);
end;

function TQVRcfp.Crear(const ID: WideString; const R: WideString; const A: WideString): Boolean;
var
  ID_: WideString;
  R_: WideString;
  A_: WideString;
begin
  ID_ := ID;
  R_ := R;
  A_ := A;
  Result := FObject.Crear(ID_, R_, A_);
end;

function TQVRcfp.Guardar(const ID: WideString; const R: WideString; const A: WideString): Boolean;
var
  ID_: WideString;
  R_: WideString;
  A_: WideString;
begin
  ID_ := ID;
  R_ := R;
  A_ := A;
  Result := FObject.Guardar(ID_, R_, A_);
end;

function TQVRcfp.CadenaADO(const ID: WideString; const Adm: Boolean): WideString;
var
  ID_: WideString;
  Adm_: WordBool;
begin
  ID_ := ID;
  Adm_ := Adm;
  Result := FObject.CadenaADO(ID_, Adm_);
end;

function TQVRcfp.CadenaADOUsuario(const Usuario: WideString; const Clave: WideString): WideString;
var
  Usuario_: WideString;
  Clave_: WideString;
begin
  Usuario_ := Usuario;
  Clave_ := Clave;
  Result := FObject.CadenaADOUsuario(Usuario_, Clave_);
end;

function TQVRcfp.TextoAValor(const TipoTNFL: WideString; const Texto: WideString): OleVariant;
var
  TipoTNFL_: WideString;
  Texto_: WideString;
begin
  TipoTNFL_ := TipoTNFL;
  Texto_ := Texto;
  Result := FObject.TextoAValor(TipoTNFL_, Texto_);
end;

function TQVRcfp.ValorATexto(const TipoTNFL: WideString; const Valor: OleVariant): WideString;
var
  TipoTNFL_: WideString;
  Valor_: OleVariant;
begin
  TipoTNFL_ := TipoTNFL;
  Valor_ := Valor;
  Result := FObject.ValorATexto(TipoTNFL_, Valor_);
end;

function TQVRcfp.GetArchivo: WideString;
begin
  Result := FObject.Get_Archivo;
end;

function TQVRcfp.GetMotorBD: MotoresBD;
begin
  Result := FObject.Get_MotorBD;
end;

function TQVRcfp.GetProvider: WideString;
begin
  Result := FObject.Get_Provider;
end;

function TQVRcfp.GetDataSource: WideString;
begin
  Result := FObject.Get_DataSource;
end;

function TQVRcfp.GetInitialCatalogOTablespace: WideString;
begin
  Result := FObject.Get_InitialCatalogOTablespace;
end;

function TQVRcfp.GetUsuarioAdm: WideString;
begin
  Result := FObject.Get_UsuarioAdm;
end;

function TQVRcfp.GetUsuarioCli: WideString;
begin
  Result := FObject.Get_UsuarioCli;
end;

function TQVRcfp.GetOtrosParametros: WideString;
begin
  Result := FObject.Get_OtrosParametros;
end;

function TQVRcfp.GetClaveAdm(const ID: WideString): WideString;
var
  ID_: WideString;
begin
  ID_ := ID;
  Result := FObject.Get_ClaveAdm(ID_);
end;

function TQVRcfp.GetClaveCli(const ID: WideString): WideString;
var
  ID_: WideString;
begin
  ID_ := ID;
  Result := FObject.Get_ClaveCli(ID_);
end;

function TQVRcfp.ComillasSQL(const Cadena: WideString): WideString;
var
  Cadena_: WideString;
begin
  Cadena_ := Cadena;
  Result := FObject.ComillasSQL(Cadena_);
end;

function TQVRcfp.ExpSQL(const Valor: OleVariant): WideString;
var
  Valor_: OleVariant;
begin
  Valor_ := Valor;
  Result := FObject.ExpSQL(Valor_);
end;

function TQVRcfp.FechaSQL(const Fecha: OleVariant): WideString;
var
  Fecha_: OleVariant;
begin
  Fecha_ := Fecha;
  Result := FObject.FechaSQL(Fecha_);
end;

function TQVRcfp.HoraSQL(const Fecha: OleVariant): WideString;
var
  Fecha_: OleVariant;
begin
  Fecha_ := Fecha;
  Result := FObject.HoraSQL(Fecha_);
end;

function TQVRcfp.FechaHoraSQL(const Fecha: OleVariant): WideString;
var
  Fecha_: OleVariant;
begin
  Fecha_ := Fecha;
  Result := FObject.FechaHoraSQL(Fecha_);
end;

function TQVRcfp.FechaSQLv(const Fecha: OleVariant): WideString;
var
  Fecha_: OleVariant;
begin
  Fecha_ := Fecha;
  Result := FObject.FechaSQLv(Fecha_);
end;

function TQVRcfp.LogicoSQL(const Valor: Boolean): WideString;
var
  Valor_: WordBool;
begin
  Valor_ := Valor;
  Result := FObject.LogicoSQL(Valor_);
end;

function TQVRcfp.AhoraSQL: WideString;
begin
  Result := FObject.AhoraSQL;
end;

function TQVRcfp.sqlEsTrue(const Campo: WideString): WideString;
var
  Campo_: WideString;
begin
  Campo_ := Campo;
  Result := FObject.sqlEsTrue(Campo_);
end;

function TQVRcfp.sqlEsFalse(const Campo: WideString): WideString;
var
  Campo_: WideString;
begin
  Campo_ := Campo;
  Result := FObject.sqlEsFalse(Campo_);
end;

function TQVRcfp.sqlFalse: WideString;
begin
  Result := FObject.sqlFalse;
end;

function TQVRcfp.CadenaParaLikeSQL(const Cadena: WideString; const ComodinInicial: Boolean; const ComodinFinal:
  Boolean): WideString;
var
  Cadena_: WideString;
  ComodinInicial_: WordBool;
  ComodinFinal_: WordBool;
begin
  Cadena_ := Cadena;
  ComodinInicial_ := ComodinInicial;
  ComodinFinal_ := ComodinFinal;
  Result := FObject.CadenaParaLikeSQL(Cadena_, ComodinInicial_, ComodinFinal_);
end;

function TQVRcfp.sqlFechaSistema: WideString;
begin
  Result := FObject.sqlFechaSistema;
end;

function TQVRcfp.sqlTOP(const Numero: Integer): WideString;
var
  Numero_: Integer;
begin
  Numero_ := Numero;
  Result := FObject.sqlTOP(Numero_);
end;

function TQVRcfp.sqlRowNum(const Numero: Integer; const AnteponerAndSiProcede: Boolean): WideString;
var
  Numero_: Integer;
  AnteponerAndSiProcede_: WordBool;
begin
  Numero_ := Numero;
  AnteponerAndSiProcede_ := AnteponerAndSiProcede;
  Result := FObject.sqlRowNum(Numero_, AnteponerAndSiProcede_);
end;

function TQVRcfp.sqlWhereRelacionTablas(const mCampo1Campo2Relacion: OleVariant): WideString;
var
  mCampo1Campo2Relacion_: OleVariant;
begin
  mCampo1Campo2Relacion_ := mCampo1Campo2Relacion;
  Result := FObject.sqlWhereRelacionTablas(mCampo1Campo2Relacion_);
end;

function TQVRcfp.sqlAlias(const Alias: WideString): WideString;
var
  Alias_: WideString;
begin
  Alias_ := Alias;
  Result := FObject.sqlAlias(Alias_);
end;

function TQVRcfp.sqlConcatenar(const Cadenas: OleVariant): WideString;
var
  Cadenas_: OleVariant;
begin
  Cadenas_ := Cadenas;
  Result := FObject.sqlConcatenar(Cadenas_);
end;

function TQVRcfp.sqlEsNulo(const CampoComprobar: WideString; const CampoAlternativo: WideString): WideString;
var
  CampoComprobar_: WideString;
  CampoAlternativo_: WideString;
begin
  CampoComprobar_ := CampoComprobar;
  CampoAlternativo_ := CampoAlternativo;
  Result := FObject.sqlEsNulo(CampoComprobar_, CampoAlternativo_);
end;

function TQVRcfp.sqlCASE(const Campo: WideString; const ParejasValoresMasOmision: OleVariant): WideString;
var
  Campo_: WideString;
  ParejasValoresMasOmision_: OleVariant;
begin
  Campo_ := Campo;
  ParejasValoresMasOmision_ := ParejasValoresMasOmision;
  Result := FObject.sqlCASE(Campo_, ParejasValoresMasOmision_);
end;

function TQVRcfp.SqlINSERT(const NombreTabla: WideString; const MValores: OleVariant): WideString;
var
  NombreTabla_: WideString;
  MValores_: OleVariant;
begin
  NombreTabla_ := NombreTabla;
  MValores_ := MValores;
  Result := FObject.SqlINSERT(NombreTabla_, MValores_);
end;

function TQVRcfp.SqlUPDATE(const NombreTabla: WideString; const NombreCampoClave: WideString; const Clave_cd: Integer;
  const MCampos: OleVariant; const MValores: OleVariant): WideString;
var
  NombreTabla_: WideString;
  NombreCampoClave_: WideString;
  Clave_cd_: Integer;
  MCampos_: OleVariant;
  MValores_: OleVariant;
begin
  NombreTabla_ := NombreTabla;
  NombreCampoClave_ := NombreCampoClave;
  Clave_cd_ := Clave_cd;
  MCampos_ := MCampos;
  MValores_ := MValores;
  Result := FObject.SqlUPDATE(NombreTabla_, NombreCampoClave_, Clave_cd_, MCampos_, MValores_);
end;

function TQVRcfp.SqlInsert2(const NombreTabla: WideString; const MCampos: OleVariant; const MValores: OleVariant):
  WideString;
var
  NombreTabla_: WideString;
  MCampos_: OleVariant;
  MValores_: OleVariant;
begin
  NombreTabla_ := NombreTabla;
  MCampos_ := MCampos;
  MValores_ := MValores;
  Result := FObject.SqlInsert2(NombreTabla_, MCampos_, MValores_);
end;

function TQVRcfp.SqlUpdate2(const NombreTabla: WideString; const MCampos: OleVariant; const MValores: OleVariant;
  const Condicion: WideString): WideString;
var
  NombreTabla_: WideString;
  MCampos_: OleVariant;
  MValores_: OleVariant;
  Condicion_: WideString;
begin
  NombreTabla_ := NombreTabla;
  MCampos_ := MCampos;
  MValores_ := MValores;
  Condicion_ := Condicion;
  Result := FObject.SqlUpdate2(NombreTabla_, MCampos_, MValores_, Condicion_);
end;

function TQVRcfp.EjecutarProcSQL7(const Conexion: IDispatch; const NombreProc: WideString; var Parametros:
  OleVariant): Boolean;
var
  Conexion_: IDispatch;
  NombreProc_: WideString;
begin
  Conexion_ := Conexion;
  NombreProc_ := NombreProc;
  Result := FObject.EjecutarProcSQL7(Conexion_, NombreProc_, Parametros);
end;

function TQVRcfp.AgregarParametroADO(const Comando: IDispatch; const TipoSQLServer: WideString; const Nombre:
  WideString; const Valor: OleVariant; const Ancho: Integer; const Direction: TOleEnum): Boolean;
var
  Comando_: IDispatch;
  TipoSQLServer_: WideString;
  Nombre_: WideString;
  Valor_: OleVariant;
  Ancho_: Integer;
  Direction_: TOleEnum;
begin
  Comando_ := Comando;
  TipoSQLServer_ := TipoSQLServer;
  Nombre_ := Nombre;
  Valor_ := Valor;
  Ancho_ := Ancho;
  Direction_ := Direction;
  Result := FObject.AgregarParametroADO(Comando_, TipoSQLServer_, Nombre_, Valor_, Ancho_, Direction_);
end;

function TQVRScr.EjecutarComandos(const ID: WideString; const MotorBD: Integer; const TextosComandos: WideString;
  const CadenaConexion: WideString; var TextoMostrar: WideString): Boolean;
var
  ID_: WideString;
  MotorBD_: Integer;
  TextosComandos_: WideString;
  CadenaConexion_: WideString;
begin
  ID_ := ID;
  MotorBD_ := MotorBD;
  TextosComandos_ := TextosComandos;
  CadenaConexion_ := CadenaConexion;
  Result := FObject.EjecutarComandos(ID_, MotorBD_, TextosComandos_, CadenaConexion_, TextoMostrar);
end;

function TQVRScr.Ejecutar1Comando(const Conexion: IDispatch; const TextoComando: WideString; const MotorBD: Integer):
  Boolean;
var
  Conexion_: IDispatch;
  TextoComando_: WideString;
  MotorBD_: Integer;
begin
  Conexion_ := Conexion;
  TextoComando_ := TextoComando;
  MotorBD_ := MotorBD;
  Result := FObject.Ejecutar1Comando(Conexion_, TextoComando_, MotorBD_);
end;

function TQVRScr.UsuarioSegunMotor(const MotorBD: Integer): WideString;
var
  MotorBD_: Integer;
begin
  MotorBD_ := MotorBD;
  Result := FObject.UsuarioSegunMotor(MotorBD_);
end;

function TQVRScr.CargarDefinicion(const ID: WideString; const MotorBD: Integer; const Ruta: WideString; const
  NombreDefinicion: WideString; const NombreBaseOTablespace: WideString; const UsuarioQVRAdm: WideString; const
  ClaveUsuarioQVRAdm: WideString; const UsuarioQVRCli: WideString; const ClaveUsuarioQVRCli: WideString; const Encri:
  Boolean): WideString;
var
  ID_: WideString;
  MotorBD_: Integer;
  Ruta_: WideString;
  NombreDefinicion_: WideString;
  NombreBaseOTablespace_: WideString;
  UsuarioQVRAdm_: WideString;
  ClaveUsuarioQVRAdm_: WideString;
  UsuarioQVRCli_: WideString;
  ClaveUsuarioQVRCli_: WideString;
  Encri_: WordBool;
begin
  ID_ := ID;
  MotorBD_ := MotorBD;
  Ruta_ := Ruta;
  NombreDefinicion_ := NombreDefinicion;
  NombreBaseOTablespace_ := NombreBaseOTablespace;
  UsuarioQVRAdm_ := UsuarioQVRAdm;
  ClaveUsuarioQVRAdm_ := ClaveUsuarioQVRAdm;
  UsuarioQVRCli_ := UsuarioQVRCli;
  ClaveUsuarioQVRCli_ := ClaveUsuarioQVRCli;
  Encri_ := Encri;
  Result := FObject.CargarDefinicion(ID_, MotorBD_, Ruta_, NombreDefinicion_, NombreBaseOTablespace_, UsuarioQVRAdm_,
    ClaveUsuarioQVRAdm_, UsuarioQVRCli_, ClaveUsuarioQVRCli_, Encri_);
end;

function TQVRScr.CargarActualizacion(const ID: WideString; const MotorBD: Integer; const Ruta: WideString; const
  Aplicacion: WideString; const VersionActual: Integer; const NombreBaseOTablespace: WideString; const UsuarioQVRAdm:
  WideString; const ClaveUsuarioQVRAdm: WideString; const UsuarioQVRCli: WideString; const ClaveUsuarioQVRCli:
  WideString; const Encri: Boolean): WideString;
var
  ID_: WideString;
  MotorBD_: Integer;
  Ruta_: WideString;
  Aplicacion_: WideString;
  VersionActual_: Integer;
  NombreBaseOTablespace_: WideString;
  UsuarioQVRAdm_: WideString;
  ClaveUsuarioQVRAdm_: WideString;
  UsuarioQVRCli_: WideString;
  ClaveUsuarioQVRCli_: WideString;
  Encri_: WordBool;
begin
  ID_ := ID;
  MotorBD_ := MotorBD;
  Ruta_ := Ruta;
  Aplicacion_ := Aplicacion;
  VersionActual_ := VersionActual;
  NombreBaseOTablespace_ := NombreBaseOTablespace;
  UsuarioQVRAdm_ := UsuarioQVRAdm;
  ClaveUsuarioQVRAdm_ := ClaveUsuarioQVRAdm;
  UsuarioQVRCli_ := UsuarioQVRCli;
  ClaveUsuarioQVRCli_ := ClaveUsuarioQVRCli;
  Encri_ := Encri;
  Result := FObject.CargarActualizacion(ID_, MotorBD_, Ruta_, Aplicacion_, VersionActual_, NombreBaseOTablespace_,
    UsuarioQVRAdm_, ClaveUsuarioQVRAdm_, UsuarioQVRCli_, ClaveUsuarioQVRCli_, Encri_);
end;

constructor TQVRprp.Create;
begin
  inherited Create;
  FObject := CoQVRprp.Create;
end;

procedure TQVRprp.Borra;
begin
  FObject.Borra;
end;

procedure TQVRprp.CreaPropiedad(const Tipo: WideString; const Nombre: WideString; const Valor: OleVariant);
var
  Tipo_: WideString;
  Nombre_: WideString;
  Valor_: OleVariant;
begin
  Tipo_ := Tipo;
  Nombre_ := Nombre;
  Valor_ := Valor;
  FObject.CreaPropiedad(Tipo_, Nombre_, Valor_);
end;

function TQVRprp.GetItem(const NombreOIndice: OleVariant): OleVariant;
var
  NombreOIndice_: OleVariant;
begin
  NombreOIndice_ := NombreOIndice;
  Result := FObject.Get_Item(NombreOIndice_);
end;

procedure TQVRprp.SetItem(const NombreOIndice: OleVariant; const Valor: OleVariant);
var
  NombreOIndice_: OleVariant;
begin
  NombreOIndice_ := NombreOIndice;
  FObject.Set_Item(NombreOIndice_, Valor);
end;

function TQVRprp.GetNumPropiedades: Integer;
begin
  Result := FObject.Get_NumPropiedades;
end;

function TQVRprp.GetNombrePropiedad(const Indice: Integer): WideString;
var
  Indice_: Integer;
begin
  Indice_ := Indice;
  Result := FObject.Get_NombrePropiedad(Indice_);
end;

constructor TcSQL20.Create;
begin
  inherited Create;
  FOwn := CocSQL20.Create;
  FObject := FOwn as _iSQL20;
end;

function TcSQL20.GetName: WideString;
begin
  Result := FOwn.Get_Name;
end;

function TcSQL20.AmpliarCondicionHaving(const Condicion: WideString; const Criterio: WideString): Boolean;
var
  Condicion_: WideString;
  Criterio_: WideString;
begin
  Condicion_ := Condicion;
  Criterio_ := Criterio;
  Result := FOwn.AmpliarCondicionHaving(Condicion_, Criterio_);
end;

procedure TcSQL20.CambiaCondicion(const NuevaCondicionWhere: WideString; const NuevaCondicionHaving: WideString);
var
  NuevaCondicionWhere_: WideString;
  NuevaCondicionHaving_: WideString;
begin
  NuevaCondicionWhere_ := NuevaCondicionWhere;
  NuevaCondicionHaving_ := NuevaCondicionHaving;
  FOwn.CambiaCondicion(NuevaCondicionWhere_, NuevaCondicionHaving_);
end;

function TcSQL20.ParteWhere(const SoloCondicion: Boolean): WideString;
var
  SoloCondicion_: WordBool;
begin
  SoloCondicion_ := SoloCondicion;
  Result := FOwn.ParteWhere(SoloCondicion_);
end;

function TcSQL20.ParteHaving(const SoloCondicion: Boolean): WideString;
var
  SoloCondicion_: WordBool;
begin
  SoloCondicion_ := SoloCondicion;
  Result := FOwn.ParteHaving(SoloCondicion_);
end;

function TcSQL20.ExpresionOriginal(const NombreCampoRS: WideString): WideString;
var
  NombreCampoRS_: WideString;
begin
  NombreCampoRS_ := NombreCampoRS;
  Result := FOwn.ExpresionOriginal(NombreCampoRS_);
end;

constructor TuSQL20.Create;
begin
  inherited Create;
  FOwn := CouSQL20.Create;
  FObject := FOwn as _iSQL20;
end;

function TuSQL20.GetName: WideString;
begin
  Result := FOwn.Get_Name;
end;


{ The events of a script runner, as its class's two properties. IDispatch has more parameters than are used here. }
{$hints off}
type
  TEventSink = class(TInterfacedObject, IDispatch)
  private
    FRunner: TQVRScr;
  public
    function GetTypeInfoCount(out Count: LongInt): HResult; stdcall;
    function GetTypeInfo(Index, LocaleID: LongInt; out TypeInfo): HResult; stdcall;
    function GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: LongInt;
      DispIDs: Pointer): HResult; stdcall;
    function Invoke(DispID: LongInt; const IID: TGUID; LocaleID: LongInt; Flags: Word; var Params;
      VarResult, ExcepInfo, ArgErr: Pointer): HResult; stdcall;
  end;

function TEventSink.GetTypeInfoCount(out Count: LongInt): HResult; stdcall;
begin
  Count := 0;
  Result := S_OK;
end;

function TEventSink.GetTypeInfo(Index, LocaleID: LongInt; out TypeInfo): HResult; stdcall;
begin
  Pointer(TypeInfo) := nil;
  Result := E_NOTIMPL;
end;

function TEventSink.GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: LongInt;
  DispIDs: Pointer): HResult; stdcall;
begin
  Result := E_NOTIMPL;
end;

{ An exception of the program's ends here: the library goes on. }
function TEventSink.Invoke(DispID: LongInt; const IID: TGUID; LocaleID: LongInt; Flags: Word; var Params;
  VarResult, ExcepInfo, ArgErr: Pointer): HResult; stdcall;
var
  Argument: PVariantArg;
begin
  Result := S_OK;
  try
    Argument := PVariantArg(TDispParams(Params).rgvarg);
    if (DispID = 1) and (Argument^.vt = VT_BYREF or VT_BSTR) then
    begin
      if Assigned(FRunner.OnProgreso) then FRunner.OnProgreso(FRunner, WideString(Argument^.pbstrVal^));
    end
    else if (DispID = 2) and (Argument^.vt = VT_BYREF or VT_BOOL) then
    begin
      if Assigned(FRunner.OnTerminado) then FRunner.OnTerminado(FRunner, Argument^.pbool^);
    end;
  except
    Result := E_FAIL;
  end;
end;

constructor TQVRScr.Create;
var
  Sink: TEventSink;
begin
  inherited Create;
  FObject := CoQVRScr.Create;
  Sink := TEventSink.Create;
  Sink.FRunner := Self;
  FSink := Sink;
  InterfaceConnect(FObject, DIID___QVRScr, FSink, FCookie);
end;

destructor TQVRScr.Destroy;
begin
  if FObject <> nil then InterfaceDisconnect(FObject, DIID___QVRScr, FCookie);
  inherited Destroy;
end;

end.
