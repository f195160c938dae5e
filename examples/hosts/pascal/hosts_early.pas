{ The library from Free Pascal or Delphi through its interfaces: hosts_early FOLDER [PROVIDER OPTIONS]
  QVRlib21_TLB.pas is the library's unit, in the package's folder imports/pascal. Its classes take constants. }
program HostsEarly;

{$ifdef FPC}{$mode delphi}{$H+}{$endif}
{$apptype console}

uses
  SysUtils, Variants, ActiveX, QVRlib21_TLB;

const
  Id = WideString('hosts of QVRlib21');
  Name = WideString('hosts');
  Commands = WideString('CREATE TABLE Avisos (Numero INTEGER)'#13#10'GO'#13#10'DROP TABLE Avisos'#13#10'GO'#13#10);

type
  TShown = class
    procedure Progreso(Sender: TObject; const Mensaje: WideString);
    procedure Terminado(Sender: TObject; Exito: Boolean);
  end;

var
  Folder, Provider, Options: WideString;
  Parameters: TQVRcfp;
  Shown: TShown;

function YesNo(Truth: Boolean): string;
begin
  if Truth then Result := 'yes' else Result := 'no';
end;

procedure Expect(Done: Boolean; const Member: string);
begin
  if not Done then raise Exception.Create(Member + ' answered False');
end;

procedure TShown.Progreso(Sender: TObject; const Mensaje: WideString);
begin
  WriteLn('Progress: ', Mensaje);
end;

procedure TShown.Terminado(Sender: TObject; Exito: Boolean);
begin
  WriteLn('Finished: ', YesNo(Exito));
end;

{ The elements must be texts of automation: a plain literal in VarArrayOf would be one of Pascal's own. }
function List(const Texts: array of WideString): OleVariant;
var
  I: Integer;
begin
  Result := VarArrayCreate([0, High(Texts)], varVariant);
  for I := 0 to High(Texts) do Result[I] := Texts[I];
end;

procedure WriteParameters;
var
  Made: TQVRcfp;
begin
  Made := TQVRcfp.Create;
  try
    Expect(Made.Asignar(Id, MotorBDSQLServer, Provider, '(local)', 'tempdb', '', '', '', '', Options), 'Asignar');
    Expect(Made.Guardar(Id, Folder, Name), 'Guardar');
  finally
    Made.Free;
  end;
end;

{ A file that is not there yet is written once; Crear then reads it. }
procedure OpenParameters;
begin
  if Parameters.Crear(Id, Folder, Name) then
    WriteLn('Connection file: there already')
  else
  begin
    WriteParameters;
    WriteLn('Connection file: created');
    Expect(Parameters.Crear(Id, Folder, Name), 'Crear');
  end;
  WriteLn('Opened: ', Parameters.Archivo, ', engine ', Parameters.MotorBD);
end;

procedure ShowQuery;
var
  Query: TcSQL20;
begin
  Query := TcSQL20.Create;
  try
    Expect(Query.Crear(Parameters.MotorBD, 'Clientes', False,
      List(['C.Nombre', 'T+', 'P.Fecha', 'F+', 'P.Importe', 'N>Total']), 'Clientes C, Pedidos P',
      List(['C.Id', 'P.IdCliente', 'L'])), 'Crear');
    WriteLn('Search understood: ', YesNo(Query.InterpretarBusqueda('Nombre', 'ana; luis')));
    Query.AmpliarOrden(2); { columns count from 1; the answer is always False }
    WriteLn('Criterion: ', Query.CriterioActual);
    WriteLn('SQL: ', Query.SQL);
  finally
    Query.Free;
  end;
end;

procedure RunScript;
var
  Script: TQVRScr;
  TextShown: WideString;
  Ran: Boolean;
begin
  Script := TQVRScr.Create;
  try
    Script.OnProgreso := Shown.Progreso;
    Script.OnTerminado := Shown.Terminado;
    { A text to show that is empty comes back as the one that was shown. }
    TextShown := '';
    Ran := Script.EjecutarComandos(Id, Parameters.MotorBD, Commands, Parameters.CadenaADO(Id, True), TextShown);
    WriteLn('Script ran: ', YesNo(Ran));
    WriteLn('By reference: [', TextShown, ']');
  finally
    Script.Free;
  end;
end;

{ A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike everywhere. }
procedure ShowProperties;
const
  Kinds: array[0..2] of WideString = ('T', 'N', 'F');
var
  Properties: TQVRprp;
  I: Integer;
begin
  Properties := TQVRprp.Create;
  try
    Properties.CreaPropiedad('T', 'Titulo', WideString('Pedidos'));
    Properties.CreaPropiedad('N', 'Margen', 12.5);
    Properties.CreaPropiedad('F', 'Desde', VarFromDateTime(EncodeDate(2024, 3, 1)));
    for I := 0 to Properties.NumPropiedades - 1 do
      WriteLn('Property ', I, ': ', Properties.NombrePropiedad[I], ' = ',
        Parameters.ValorATexto(Kinds[I], Properties[I]));
  finally
    Properties.Free;
  end;
end;

procedure RunAll;
begin
  Parameters := TQVRcfp.Create;
  try
    OpenParameters;
    ShowQuery;
    RunScript;
    ShowProperties;
  finally
    Parameters.Free;
  end;
end;

begin
  if (ParamCount <> 1) and (ParamCount <> 3) then
  begin
    WriteLn('usage: hosts_early FOLDER [PROVIDER OPTIONS]');
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
