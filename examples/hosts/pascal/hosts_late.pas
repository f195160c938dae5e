{ The library from Free Pascal or Delphi: hosts_late FOLDER [PROVIDER OPTIONS]
  Late-bound through OleVariant. Lists are variant arrays from 0; variables go by reference and may come back changed. }
program HostsLate;

{$ifdef FPC}{$mode delphi}{$H+}{$endif}
{$apptype console}

uses
  SysUtils, Variants, ActiveX, ComObj, ScriptEvents;

const
  Id = WideString('hosts of QVRlib21');
  SqlServer = 2;
  Name = WideString('hosts');
  Commands = WideString('CREATE TABLE Avisos (Numero INTEGER)'#13#10'GO'#13#10'DROP TABLE Avisos'#13#10'GO'#13#10);

type
  TShown = class
    procedure Progreso(const Message: WideString);
    procedure Terminado(Success: Boolean);
  end;

var
  Folder, Provider, Options: WideString;
  Shown: TShown;

function YesNo(Truth: Boolean): string;
begin
  if Truth then Result := 'yes' else Result := 'no';
end;

procedure Expect(Done: Boolean; const Member: string);
begin
  if not Done then raise Exception.Create(Member + ' answered False');
end;

procedure TShown.Progreso(const Message: WideString);
begin
  WriteLn('Progress: ', Message);
end;

procedure TShown.Terminado(Success: Boolean);
begin
  WriteLn('Finished: ', YesNo(Success));
end;

{ The elements must be texts of automation: a plain literal in VarArrayOf would be one of Pascal's own. }
function List(const Texts: array of WideString): OleVariant;
var
  I: Integer;
begin
  Result := VarArrayCreate([0, High(Texts)], varVariant);
  for I := 0 to High(Texts) do Result[I] := Texts[I];
end;

{ A file that is not there yet is written once; Crear then reads it into a new object. }
function OpenedParameters: OleVariant;
var
  Made: OleVariant;
begin
  Result := CreateOleObject('QVRlib21.QVRcfp');
  if Result.Crear(Id, Folder, Name) then
    WriteLn('Connection file: there already')
  else
  begin
    Made := CreateOleObject('QVRlib21.QVRcfp');
    Expect(Made.Asignar(Id, SqlServer, Provider, WideString('(local)'), WideString('tempdb'), WideString(''),
      WideString(''), WideString(''), WideString(''), Options), 'Asignar');
    Expect(Made.Guardar(Id, Folder, Name), 'Guardar');
    WriteLn('Connection file: created');
    Result := CreateOleObject('QVRlib21.QVRcfp');
    Expect(Result.Crear(Id, Folder, Name), 'Crear');
  end;
  WriteLn('Opened: ', Result.Archivo, ', engine ', Result.MotorBD);
end;

{ The class's own interface has the contract's members with iSQL20_ in front of their names. }
procedure ShowQuery(Engine: Integer);
var
  Query: OleVariant;
begin
  Query := CreateOleObject('QVRlib21.cSQL20');
  Expect(Query.iSQL20_Crear(Engine, WideString('Clientes'), False,
    List(['C.Nombre', 'T+', 'P.Fecha', 'F+', 'P.Importe', 'N>Total']), WideString('Clientes C, Pedidos P'),
    List(['C.Id', 'P.IdCliente', 'L'])), 'iSQL20_Crear');
  WriteLn('Search understood: ',
    YesNo(Query.iSQL20_InterpretarBusqueda(WideString('Nombre'), WideString('ana; luis'))));
  Query.iSQL20_AmpliarOrden(2); { columns count from 1; the answer is always False }
  WriteLn('Criterion: ', Query.iSQL20_CriterioActual);
  WriteLn('SQL: ', Query.iSQL20_SQL);
end;

procedure RunScript(const Parameters: OleVariant);
var
  Script, Engine: OleVariant;
  Connection, TextShown: WideString;
  Ran: Boolean;
  Subscription: TSubscription;
begin
  Script := CreateOleObject('QVRlib21.QVRScr');
  Engine := Parameters.MotorBD;
  Connection := Parameters.CadenaADO(Id, True);
  { A text to show that is empty comes back as the one that was shown. }
  TextShown := '';
  Subscription := TSubscription.Create(Script, Shown.Progreso, Shown.Terminado);
  try
    Ran := Script.EjecutarComandos(Id, Engine, Commands, Connection, TextShown);
  finally
    Subscription.Free;
  end;
  WriteLn('Script ran: ', YesNo(Ran));
  WriteLn('By reference: [', TextShown, ']');
end;

{ A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike everywhere. }
procedure ShowProperties(const Parameters: OleVariant);
const
  Kinds: array[0..2] of WideString = ('T', 'N', 'F');
var
  Properties: OleVariant;
  I: Integer;
begin
  Properties := CreateOleObject('QVRlib21.QVRprp');
  Properties.CreaPropiedad(Kinds[0], WideString('Titulo'), WideString('Pedidos'));
  Properties.CreaPropiedad(Kinds[1], WideString('Margen'), 12.5);
  Properties.CreaPropiedad(Kinds[2], WideString('Desde'), VarFromDateTime(EncodeDate(2024, 3, 1)));
  for I := 0 to Properties.NumPropiedades - 1 do
    WriteLn('Property ', I, ': ', Properties.NombrePropiedad(I), ' = ',
      Parameters.ValorATexto(Kinds[I], Properties.Item(I)));
end;

procedure RunAll;
var
  Parameters: OleVariant;
begin
  Parameters := OpenedParameters;
  ShowQuery(Parameters.MotorBD);
  RunScript(Parameters);
  ShowProperties(Parameters);
end;

begin
  if (ParamCount <> 1) and (ParamCount <> 3) then
  begin
    WriteLn('usage: hosts_late FOLDER [PROVIDER OPTIONS]');
    Halt(2);
  end;
  Folder := WideString(ParamStr(1));
  Provider := 'SQLOLEDB';
  Options := 'Integrated Security=SSPI;';
  if ParamCount = 3 then
  begin
    Provider := WideString(ParamStr(2));
    Options := WideString(ParamStr(3));
  end;
  CoInitialize(nil);
  Shown := TShown.Create;
  try
    RunAll;
  except
    on E: Exception do
    begin
      WriteLn(E.Message);
      ExitCode := 1;
    end;
  end;
  Shown.Free;
  CoUninitialize;
end.
