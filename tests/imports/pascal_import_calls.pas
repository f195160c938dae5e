{ Calls members of every interface through its slots and through its dispinterface, on two objects that are alike, and
  compares what both answer. Prints a line for each call that differs, and the number of calls. }
program PascalImportCalls;

{$mode delphi}{$H+}
{$apptype console}

uses
  SysUtils, Variants, ActiveX, ComObj, QVRlib21_TLB;

var
  Calls, Different: Integer;
  Last: string;

procedure Compare(const Member: string; const Early, Late: WideString);
begin
  Inc(Calls);
  Last := Member;
  if (Early <> Late) or (Early = '') then
  begin
    Inc(Different);
    WriteLn(Member, ': early [', Early, '], late [', Late, ']');
  end;
end;

function ObjectOf(const ClassId: TGUID): IDispatch;
begin
  Result := CreateComObject(ClassId) as IDispatch;
end;

function Text(const Value: OleVariant): WideString;
begin
  if VarIsNull(Value) then Result := 'Null'
  else if VarIsEmpty(Value) then Result := 'Empty'
  else Result := WideString(Value);
end;

function Number(Value: Int64): WideString;
begin
  Result := WideString(IntToStr(Value));
end;

function Truth(Value: Boolean): WideString;
begin
  if Value then Result := 'true' else Result := 'false';
end;

procedure CompareOv;
var
  Early: _Ov;
  Late: _OvDisp;
begin
  Early := CoOv.Create;
  Late := _OvDisp(ObjectOf(CLASS_Ov));
  Compare('Version', Number(Early.Version), Number(Late.Version));
  Compare('CadenaVersion', Early.CadenaVersion, Late.CadenaVersion);
  Compare('Path', Early.Path, Late.Path);
  Compare('PathCompleto', Early.PathCompleto, Late.PathCompleto);
end;

procedure CompareConnections;
var
  Early: _QVRcfp;
  Late: _QVRcfpDisp;
  Id, One, Two: WideString;
  Engine: MotoresBD;
  EngineNumber: Integer;
  Administrator, First, Last: WordBool;
  Value, List: OleVariant;
  Limit: Integer;
begin
  Early := CoQVRcfp.Create;
  Late := _QVRcfpDisp(ObjectOf(CLASS_QVRcfp));
  Id := 'id';
  One := 'one';
  Two := 'two';
  Engine := MotorBDOracle;
  EngineNumber := MotorBDOracle;
  Compare('Asignar', Truth(Early.Asignar(Id, Engine, One, Two, One, Two, One, Two, One, Two)),
    Truth(Late.Asignar(Id, EngineNumber, One, Two, One, Two, One, Two, One, Two)));
  Compare('MotorBD', Number(Early.MotorBD), Number(Late.MotorBD));
  Compare('Provider', Early.Provider, Late.Provider);
  Compare('DataSource', Early.DataSource, Late.DataSource);
  Compare('OtrosParametros', Early.OtrosParametros, Late.OtrosParametros);
  Compare('ClaveAdm', Early.Get_ClaveAdm(Id), Late.ClaveAdm(Id));
  Compare('ClaveCli', Early.Get_ClaveCli(Id), Late.ClaveCli(Id));
  Administrator := True;
  Compare('CadenaADO', Early.CadenaADO(Id, Administrator), Late.CadenaADO(Id, Administrator));
  Compare('CadenaADOUsuario', Early.CadenaADOUsuario(One, Two), Late.CadenaADOUsuario(One, Two));
  Value := 2.5;
  Compare('ExpSQL', Early.ExpSQL(Value), Late.ExpSQL(Value));
  Value := Null;
  Compare('ExpSQL of Null', Early.ExpSQL(Value), Late.ExpSQL(Value));
  Limit := 5;
  First := False;
  Compare('sqlRowNum', Early.sqlRowNum(Limit, First), Late.sqlRowNum(Limit, First));
  First := True;
  Last := False;
  Compare('CadenaParaLikeSQL', Early.CadenaParaLikeSQL(One, First, Last), Late.CadenaParaLikeSQL(One, First, Last));
  One := 'N';
  Two := '7';
  Compare('TextoAValor', Text(Early.TextoAValor(One, Two)), Text(Late.TextoAValor(One, Two)));
  Value := 7;
  Compare('ValorATexto', Early.ValorATexto(One, Value), Late.ValorATexto(One, Value));
  List := VarArrayCreate([0, 1], varVariant);
  List[0] := WideString('A');
  List[1] := WideString('B');
  Compare('sqlConcatenar', Early.sqlConcatenar(List), Late.sqlConcatenar(List));
  Compare('SqlINSERT', Early.SqlINSERT(One, List), Late.SqlINSERT(One, List));
  Compare('sqlFechaSistema', Early.sqlFechaSistema, Late.sqlFechaSistema);
end;

function Columns: OleVariant;
begin
  Result := VarArrayCreate([0, 3], varVariant);
  Result[0] := WideString('C.Nombre');
  Result[1] := WideString('T+');
  Result[2] := WideString('C.Alta');
  Result[3] := WideString('F+');
end;

{ The contract through both views of a query: by its own names, and by those that the class puts in front. }
procedure CompareQueries;
var
  Early: _iSQL20;
  Late: _cSQL20Disp;
  ByContract: _iSQL20Disp;
  Contract: IDispatch;
  Name, Tables, Search, None: WideString;
  Distinct, Done, Again: WordBool;
  List, Left: OleVariant;
  Engine, Limit, Language: Integer;
  Groups, Column: SmallInt;
begin
  Early := CocSQL20.Create as _iSQL20;
  Late := _cSQL20Disp(ObjectOf(CLASS_cSQL20));
  { Asked for IDispatch, a query gives its class's own members; the contract's are those of this interface. }
  Contract := Early;
  ByContract := _iSQL20Disp(Contract);
  Name := 'Clientes';
  Tables := 'Clientes C';
  None := '';
  Distinct := False;
  List := Columns;
  Left := EmptyParam;
  Engine := 2;
  Groups := 0;
  Limit := 0;
  Language := 1;
  Compare('Crear',
    Truth(Early.Crear(Engine, Name, Distinct, List, Tables, Left, None, Groups, None, None, Limit, Language)),
    Truth(Late.iSQL20_Crear(Engine, Name, Distinct, List, Tables, Left, None, Groups, None, None, Limit, Language)));
  Name := 'Nombre';
  Search := 'ana; luis';
  Compare('InterpretarBusqueda', Truth(Early.InterpretarBusqueda(Name, Search, None)),
    Truth(Late.iSQL20_InterpretarBusqueda(Name, Search, None)));
  Column := 2;
  Compare('AmpliarOrden', Truth(Early.AmpliarOrden(Column)), Truth(Late.iSQL20_AmpliarOrden(Column)));
  Early.Tag := 'mine';
  Late.iSQL20_Tag := 'mine';
  Compare('Tag', Early.Tag, Late.iSQL20_Tag);
  Early.TOP := 5;
  Late.iSQL20_TOP := 5;
  Compare('TOP', Number(Early.TOP), Number(Late.iSQL20_TOP));
  Compare('MotorBD', Number(Early.MotorBD), Number(Late.iSQL20_MotorBD));
  Compare('CriterioActual', Early.CriterioActual, Late.iSQL20_CriterioActual);
  Compare('CriterioActualCompleto', Early.CriterioActualCompleto, Late.iSQL20_CriterioActualCompleto);
  Compare('SQL', Early.SQL, Late.iSQL20_SQL);
  Compare('SQLSinOrden', Early.SQLSinOrden, Late.iSQL20_SQLSinOrden);
  Compare('TipoCampo', Early.TipoCampo(Name), Late.iSQL20_TipoCampo(Name));
  Again := True;
  Compare('ParteOrder', Early.ParteOrder(Again), Late.iSQL20_ParteOrder(Again));
  Compare('SQL of the contract', Early.SQL, ByContract.SQL);
  Compare('NumColumna of the contract', Number(Early.NumColumna(Name)), Number(ByContract.NumColumna(Name)));
  Done := True;
  Again := True;
  Early.RestauraOriginal(Done, Again);
  Late.iSQL20_RestauraOriginal(Done, Again);
  Compare('RestauraOriginal', Early.SQL, Late.iSQL20_SQL);
end;

procedure CompareUnions;
var
  Early: _uSQL20;
  Late: _uSQL20Disp;
begin
  Early := CouSQL20.Create;
  Late := _uSQL20Disp(ObjectOf(CLASS_uSQL20));
  Compare('Name', Early.Name, Late.Name);
  Compare('Creado', Truth(Early.iSQL20_Creado), Truth(Late.iSQL20_Creado));
end;

procedure CompareScripts;
var
  Early: _QVRScr;
  Late: _QVRScrDisp;
  Engine: Integer;
begin
  Early := CoQVRScr.Create;
  Late := _QVRScrDisp(ObjectOf(CLASS_QVRScr));
  Engine := 2;
  Compare('UsuarioSegunMotor', Early.UsuarioSegunMotor(Engine), Late.UsuarioSegunMotor(Engine));
end;

type
  TFailing = class
    Heard: Integer;
    procedure Terminado(Sender: TObject; Exito: Boolean);
  end;

procedure TFailing.Terminado(Sender: TObject; Exito: Boolean);
begin
  Inc(Heard);
  raise Exception.Create('of the program');
end;

{ Nothing is loaded from a folder that there is not, which both are told. The call goes on behind a handler that fails. }
procedure CompareFailingHandlers;
var
  Failing: TFailing;
  Early: TQVRScr;
  Late: _QVRScrDisp;
  Id, Folder, Name, None: WideString;
  Engine: Integer;
  Encrypted: WordBool;
begin
  Failing := TFailing.Create;
  Early := TQVRScr.Create;
  Late := _QVRScrDisp(ObjectOf(CLASS_QVRScr));
  Early.OnTerminado := Failing.Terminado;
  Id := 'id';
  Folder := 'C:\none';
  Name := 'Shop';
  None := '';
  Engine := 2;
  Encrypted := False;
  Compare('CargarDefinicion with a handler that fails',
    '[' + Early.CargarDefinicion(Id, Engine, Folder, Name, None, None, None, None, None, Encrypted) + ']',
    '[' + Late.CargarDefinicion(Id, Engine, Folder, Name, None, None, None, None, None, Encrypted) + ']');
  Compare('Terminado', Number(Failing.Heard), '1');
  Early.Free;
  Failing.Free;
end;

procedure CompareProperties;
var
  Early: _QVRprp;
  Late: _QVRprpDisp;
  Kind, Name: WideString;
  Value, Index: OleVariant;
  First: Integer;
begin
  Early := CoQVRprp.Create;
  Late := _QVRprpDisp(ObjectOf(CLASS_QVRprp));
  Kind := 'N';
  Name := 'Margen';
  Value := 12.5;
  Early.CreaPropiedad(Kind, Name, Value);
  Late.CreaPropiedad(Kind, Name, Value);
  Index := Name;
  Compare('Item', Text(Early.Get_Item(Index)), Text(Late.Item(Index)));
  Value := 13;
  Early.Set_Item(Index, Value);
  Compare('Item, written', Text(Early.Get_Item(Index)), '13');
  First := 0;
  Compare('NombrePropiedad', Early.Get_NombrePropiedad(First), Late.NombrePropiedad(First));
  Compare('NumPropiedades', Number(Early.NumPropiedades), Number(Late.NumPropiedades));
end;

begin
  CoInitialize(nil);
  try
    CompareOv;
    CompareConnections;
    CompareQueries;
    CompareUnions;
    CompareScripts;
    CompareFailingHandlers;
    CompareProperties;
  except
    on E: Exception do
    begin
      Write('behind ', Last, ': ', E.ClassName, ': ', E.Message);
      if E is EOleSysError then Write(IntToHex(EOleSysError(E).ErrorCode, 8));
      WriteLn;
      ExitCode := 1;
    end;
  end;
  WriteLn(Calls, ' calls, ', Different, ' different');
  if (Different > 0) or (Calls = 0) then ExitCode := 1;
end.
