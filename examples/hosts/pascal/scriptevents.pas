{ The events of the library's script runner, as two methods of a program's own. }
unit ScriptEvents;

{$ifdef FPC}{$mode delphi}{$H+}{$endif}

interface

type
  TProgreso = procedure(const Message: WideString) of object;
  TTerminado = procedure(Success: Boolean) of object;

  { Listens until it is freed. }
  TSubscription = class
  private
    FSource: IUnknown;
    FCookie: {$ifdef FPC}LongWord{$else}LongInt{$endif};
  public
    constructor Create(const Script: OleVariant; Progreso: TProgreso; Terminado: TTerminado);
    destructor Destroy; override;
  end;

implementation

uses
  Windows, ActiveX, ComObj, Variants;

const
  EventsId: TGUID = '{2C1D5E0F-CC8E-4474-B992-43AB2C4019FB}';

type
  TSink = class(TInterfacedObject, IDispatch)
  private
    FProgreso: TProgreso;
    FTerminado: TTerminado;
  public
    function GetTypeInfoCount(out Count: LongInt): HResult; stdcall;
    function GetTypeInfo(Index, LocaleID: LongInt; out TypeInfo): HResult; stdcall;
    function GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: LongInt;
      DispIDs: Pointer): HResult; stdcall;
    function Invoke(DispID: LongInt; const IID: TGUID; LocaleID: LongInt; Flags: Word; var Params;
      VarResult, ExcepInfo, ArgErr: Pointer): HResult; stdcall;
  end;

function TSink.GetTypeInfoCount(out Count: LongInt): HResult; stdcall;
begin
  Count := 0;
  Result := S_OK;
end;

function TSink.GetTypeInfo(Index, LocaleID: LongInt; out TypeInfo): HResult; stdcall;
begin
  Pointer(TypeInfo) := nil;
  Result := E_NOTIMPL;
end;

function TSink.GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: LongInt;
  DispIDs: Pointer): HResult; stdcall;
begin
  Result := E_NOTIMPL;
end;

{ Progreso has number 1, Terminado 2; both have one argument, by reference. }
function TSink.Invoke(DispID: LongInt; const IID: TGUID; LocaleID: LongInt; Flags: Word; var Params;
  VarResult, ExcepInfo, ArgErr: Pointer): HResult; stdcall;
var
  Argument: PVariantArg;
begin
  Result := S_OK;
  Argument := PVariantArg(TDispParams(Params).rgvarg);
  if (DispID = 1) and (Argument^.vt = varByRef or varOleStr) then
    FProgreso(WideString(Argument^.pbstrVal^))
  else if (DispID = 2) and (Argument^.vt = varByRef or varBoolean) then
    FTerminado(Argument^.pbool^);
end;

constructor TSubscription.Create(const Script: OleVariant; Progreso: TProgreso; Terminado: TTerminado);
var
  Sink: TSink;
  Kept: IUnknown;
begin
  inherited Create;
  Sink := TSink.Create;
  Kept := Sink;
  Sink.FProgreso := Progreso;
  Sink.FTerminado := Terminado;
  FSource := IUnknown(Script);
  InterfaceConnect(FSource, EventsId, Kept, FCookie);
end;

destructor TSubscription.Destroy;
begin
  if FSource <> nil then InterfaceDisconnect(FSource, EventsId, FCookie);
  inherited Destroy;
end;

end.
