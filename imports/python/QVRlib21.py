"""QVRlib21 for Python with pywin32. Made from the library's IDL by tools/imports/write.py.

    parameters = QVRcfp()
    if parameters.Crear("my application", r"C:\\Data", "shop"):
        print(parameters.CadenaADO("my application", True))

Objects stay on the thread that made them. None is Null, dates are datetime without a time zone, lists and tuples are
arrays, and what is left out of a call is left to the library. A call that fails raises pythoncom.com_error; a member
that answers False or an empty text does not. Python's width is the library's.
"""
from collections.abc import Callable, Sequence
from datetime import datetime
from decimal import Decimal
from enum import IntEnum
from typing import Any, TypeAlias

import pythoncom
from pythoncom import VT_BOOL, VT_BSTR, VT_BYREF, VT_DISPATCH, VT_I2, VT_I4, VT_VARIANT, VT_VOID
from win32com.client.connect import SimpleConnection
from win32com.server.util import wrap

Value: TypeAlias = "None | bool | int | float | str | datetime | Decimal | Sequence[Value]"

LIBRARY_ID = "{5607725A-CE38-4F60-BDB6-A350A7556FCA}"
_EVENTS_ID = "{2C1D5E0F-CC8E-4474-B992-43AB2C4019FB}"
_METHOD, _GET, _PUT = 1, 2, 4
_IN, _IN_OUT = 1, 3
# With types at hand pywin32 hands this on as an argument that is missing, and not as an empty one.
_LEFT_OUT: Any = pythoncom.Empty


def _invoke(target: Any, member: int, kind: int, result: int, types: Sequence[int], *arguments: object) -> Any:
    """A call whose types are told: pywin32 needs no wrapper of makepy's for it and asks nothing of the type library.

    The library takes all arguments by reference, and pywin32 would return each of them. It takes values as well, so
    that only what a member really answers in is told by reference; pywin32 returns that behind the result.
    """
    described = tuple((each, _IN_OUT if each & VT_BYREF else _IN) for each in types)
    return target.InvokeTypes(member, 0, kind, (result, 0), described, *arguments)


def _text(answer: Any) -> str:
    """An empty text may come as none."""
    return str(answer or "")


def _value(answer: Any) -> Any:
    """Automation's dates have no time zone; pywin32 gives them one, and would move the hour on their way back."""
    if isinstance(answer, tuple):
        return tuple(_value(each) for each in answer)
    return answer.replace(tzinfo=None) if isinstance(answer, datetime) else answer


class _Object:
    """A new object of the class, or one that is there: another class's, a win32com object, or a bare pointer."""

    _class_id_: str
    _interface_id_: str

    def __init__(self, existing: Any = None) -> None:
        if existing is None:
            existing = pythoncom.CoCreateInstance(
                self._class_id_, None, pythoncom.CLSCTX_INPROC_SERVER, pythoncom.IID_IDispatch)
        self._oleobj_ = _as_interface(existing, self._interface_id_)


def _as_interface(existing: Any, interface: str) -> Any:
    return getattr(existing, "_oleobj_", existing).QueryInterface(interface, pythoncom.IID_IDispatch)


class _Events:
    """What hears a script. It does not know the script's object, so that this can go."""

    _public_methods_: list[str] = []
    _dispid_to_func_ = {1: "Progreso", 2: "Terminado"}

    def __init__(self) -> None:
        self.on_progreso: Callable[[str], object] | None = None
        self.on_terminado: Callable[[bool], object] | None = None

    def _query_interface_(self, interface: Any) -> Any:
        return wrap(self) if str(interface) == _EVENTS_ID else None

    # What a handler returns is not for the library: pywin32 would write it into the event's argument.
    def Progreso(self, Mensaje: str) -> None:
        if self.on_progreso:
            self.on_progreso(_text(Mensaje))

    def Terminado(self, Exito: bool) -> None:
        if self.on_terminado:
            self.on_terminado(bool(Exito))


class MotoresBD(IntEnum):
    """Database engines."""

    MotorBDJet = 1
    MotorBDSQLServer = 2
    MotorBDOracle = 3


class ParameterDirectionEnum(IntEnum):
    """ADO's directions of a parameter."""

    adParamUnknown = 0
    adParamInput = 1
    adParamOutput = 2
    adParamInputOutput = 3
    adParamReturnValue = 4


class iSQL20(_Object):
    """What every query offers."""

    _interface_id_ = "{FE0AC381-48B5-4AA1-A217-55DA8568159D}"

    def __init__(self, existing: Any) -> None:
        super().__init__(existing)
        self._contract_ = _as_interface(self, "{FE0AC381-48B5-4AA1-A217-55DA8568159D}")

    @property
    def CriterioActualCompleto(self) -> str:
        """What was added to the query, as one text to be kept."""
        return _text(_invoke(self._contract_, 0x68030000, _GET, VT_BSTR, ()))

    @CriterioActualCompleto.setter
    def CriterioActualCompleto(self, Valor: str) -> None:
        """Puts back what was added from such a text."""
        _invoke(self._contract_, 0x68030000, _PUT, VT_VOID, (VT_BSTR,), Valor)

    def AdoptaComoOriginal(self, AdoptarWhere: bool, AdoptarHaving: bool, AdoptarOrder: bool) -> None:
        """Makes what was added part of the statement as created."""
        _invoke(self._contract_, 0x60030002, _METHOD, VT_VOID, (VT_BOOL, VT_BOOL, VT_BOOL), AdoptarWhere,
            AdoptarHaving, AdoptarOrder)

    def AmpliarCondicionWhere(self, Condicion: str, Criterio: str = _LEFT_OUT) -> bool:
        """Narrows the query; False for an empty condition and for one that is there already."""
        return bool(_invoke(self._contract_, 0x60030003, _METHOD, VT_BOOL, (VT_BSTR, VT_BSTR), Condicion, Criterio))

    def AmpliarOrden(self, NuevaColumna: int) -> bool:
        """Sorts by this column first, once more in reverse; always False."""
        return bool(_invoke(self._contract_, 0x60030004, _METHOD, VT_BOOL, (VT_I2,), NuevaColumna))

    def CambiaOrden(self, NuevoOrden: str) -> None:
        """Replaces the query's order."""
        _invoke(self._contract_, 0x60030005, _METHOD, VT_VOID, (VT_BSTR,), NuevoOrden)

    @property
    def Creado(self) -> bool:
        """Whether there is a query."""
        return bool(_invoke(self._contract_, 0x68030006, _GET, VT_BOOL, ()))

    def Crear(self, MotorBD: int, NombreObjeto: str, UsarDistinct: bool, ColumnasSELECT: Value, TablasFROM: str,
            RelacionTablas: Value = _LEFT_OUT, CondicionWHEREInicial: str = _LEFT_OUT,
            NumColumnasGROUPBY: int = _LEFT_OUT, CondicionHAVINGInicial: str = _LEFT_OUT,
            TextoORDERBYInicial: str = _LEFT_OUT, TOP: int = _LEFT_OUT, Idioma: int = _LEFT_OUT) -> bool:
        """Creates the query from columns, tables, relations and initial clauses."""
        return bool(_invoke(self._contract_, 0x60030007, _METHOD, VT_BOOL, (VT_I4, VT_BSTR, VT_BOOL, VT_VARIANT,
            VT_BSTR, VT_VARIANT, VT_BSTR, VT_I2, VT_BSTR, VT_BSTR, VT_I4, VT_I4), MotorBD, NombreObjeto, UsarDistinct,
            ColumnasSELECT, TablasFROM, RelacionTablas, CondicionWHEREInicial, NumColumnasGROUPBY,
            CondicionHAVINGInicial, TextoORDERBYInicial, TOP, Idioma))

    def CrearDesdeTextoDefinicion(self, TextoDefinicion: str) -> bool:
        """Creates the query from its definition text."""
        return bool(_invoke(self._contract_, 0x60030008, _METHOD, VT_BOOL, (VT_BSTR,), TextoDefinicion))

    @property
    def TextoDefinicion(self) -> str:
        """The whole query as one text to be kept."""
        return _text(_invoke(self._contract_, 0x68030009, _GET, VT_BSTR, ()))

    @property
    def CriterioActual(self) -> str:
        """What was added, in words for the user."""
        return _text(_invoke(self._contract_, 0x6803000A, _GET, VT_BSTR, ()))

    def InterpretarBusqueda(self, NombreCampoRS: str, TextoBusqueda: str, Criterio: str = _LEFT_OUT) -> bool:
        """Narrows the query by what a user typed for a column; False for what is no search."""
        return bool(_invoke(self._contract_, 0x6003000B, _METHOD, VT_BOOL, (VT_BSTR, VT_BSTR, VT_BSTR), NombreCampoRS,
            TextoBusqueda, Criterio))

    def ParteOrder(self, SinClausula: bool = _LEFT_OUT) -> str:
        """The current ORDER BY clause, or its list alone."""
        return _text(_invoke(self._contract_, 0x6003000C, _METHOD, VT_BSTR, (VT_BOOL,), SinClausula))

    def RestauraOriginal(self, RestaurarWhereYHaving: bool, RestaurarOrder: bool) -> None:
        """Takes away what was added."""
        _invoke(self._contract_, 0x6003000D, _METHOD, VT_VOID, (VT_BOOL, VT_BOOL), RestaurarWhereYHaving,
            RestaurarOrder)

    @property
    def SQL(self) -> str:
        """The statement as it is now."""
        return _text(_invoke(self._contract_, 0x6803000E, _GET, VT_BSTR, ()))

    @property
    def SQLOriginal(self) -> str:
        """The statement as it was created."""
        return _text(_invoke(self._contract_, 0x6803000F, _GET, VT_BSTR, ()))

    @property
    def SQLOriginalSinOrden(self) -> str:
        """The statement as it was created, without its order."""
        return _text(_invoke(self._contract_, 0x68030010, _GET, VT_BSTR, ()))

    @property
    def SQLSinOrden(self) -> str:
        """The statement as it is now, without its order."""
        return _text(_invoke(self._contract_, 0x68030011, _GET, VT_BSTR, ()))

    def TipoCampo(self, NombreCampoRS: str) -> str:
        """Type letter of the column with this name in a record set."""
        return _text(_invoke(self._contract_, 0x60030012, _METHOD, VT_BSTR, (VT_BSTR,), NombreCampoRS))

    def NumColumna(self, NombreCampoRS: str) -> int:
        """Position of the column with this name in a record set; 0 for none."""
        return int(_invoke(self._contract_, 0x60030013, _METHOD, VT_I2, (VT_BSTR,), NombreCampoRS))

    def NumColumnas(self) -> int:
        """Number of columns."""
        return int(_invoke(self._contract_, 0x60030014, _METHOD, VT_I2, ()))

    @property
    def Tag(self) -> str:
        """Text of the caller's own."""
        return _text(_invoke(self._contract_, 0x68030015, _GET, VT_BSTR, ()))

    @Tag.setter
    def Tag(self, Valor: str) -> None:
        """Text of the caller's own."""
        _invoke(self._contract_, 0x68030015, _PUT, VT_VOID, (VT_BSTR,), Valor)

    @property
    def TOP(self) -> int:
        """Limit of rows; 0 for none."""
        return int(_invoke(self._contract_, 0x68030017, _GET, VT_I4, ()))

    @TOP.setter
    def TOP(self, Valor: int) -> None:
        """Limit of rows; 0 for none."""
        _invoke(self._contract_, 0x68030017, _PUT, VT_VOID, (VT_I4,), Valor)

    @property
    def Idioma(self) -> int:
        """Language number."""
        return int(_invoke(self._contract_, 0x68030019, _GET, VT_I4, ()))

    @Idioma.setter
    def Idioma(self, Valor: int) -> None:
        """Language number; writing also sets the library's language."""
        _invoke(self._contract_, 0x68030019, _PUT, VT_VOID, (VT_I4,), Valor)

    @property
    def MotorBD(self) -> int:
        """Database engine; 0 when not set."""
        return int(_invoke(self._contract_, 0x6803001B, _GET, VT_I4, ()))

    @MotorBD.setter
    def MotorBD(self, Valor: MotoresBD | int) -> None:
        """Database engine; texts that are there do not change."""
        _invoke(self._contract_, 0x6803001B, _PUT, VT_VOID, (VT_I4,), Valor)


class Ov(_Object):
    """Version and location of the library."""

    _class_id_ = "{88AE9FBC-6D4B-4BA9-80A2-4047614C46A7}"
    _interface_id_ = "{EEA88F6F-600A-44FD-8569-9C5A1056019F}"

    def Version(self) -> int:
        """Version as one number: 2.10.24 is 21024."""
        return int(_invoke(self._oleobj_, 0x60030000, _METHOD, VT_I4, ()))

    def CadenaVersion(self) -> str:
        """Version as text: 2.10.24."""
        return _text(_invoke(self._oleobj_, 0x60030001, _METHOD, VT_BSTR, ()))

    def Path(self) -> str:
        """Folder of the library file, without a separator at its end."""
        return _text(_invoke(self._oleobj_, 0x60030002, _METHOD, VT_BSTR, ()))

    def PathCompleto(self) -> str:
        """Path of the library file, ending in .dll."""
        return _text(_invoke(self._oleobj_, 0x60030003, _METHOD, VT_BSTR, ()))


class QVRcfp(_Object):
    """Connection parameters and SQL of the configured engine."""

    _class_id_ = "{B4E0A2A0-2C51-419F-BD8F-57DEC6DFF1E4}"
    _interface_id_ = "{BAB7D9FF-33EB-4C08-A9BF-3DB89ADC461E}"

    def Asignar(self, ID: str, MotorBD: MotoresBD | int, Provider: str, DataSource: str,
            InitialCatalogOTablespace: str, UsuarioAdm: str, ClaveAdm: str, UsuarioCli: str, ClaveCli: str,
            OtrosParametros: str) -> bool:
        """Takes over connection parameters; True when done."""
        return bool(_invoke(self._oleobj_, 0x60030000, _METHOD, VT_BOOL, (VT_BSTR, VT_I4, VT_BSTR, VT_BSTR, VT_BSTR,
            VT_BSTR, VT_BSTR, VT_BSTR, VT_BSTR, VT_BSTR), ID, MotorBD, Provider, DataSource,
            InitialCatalogOTablespace, UsuarioAdm, ClaveAdm, UsuarioCli, ClaveCli, OtrosParametros))

    def Crear(self, ID: str, R: str, A: str) -> bool:
        """Loads file A.cfp of folder R; False and empty when it is missing, damaged or of another identification."""
        return bool(_invoke(self._oleobj_, 0x60030001, _METHOD, VT_BOOL, (VT_BSTR, VT_BSTR, VT_BSTR), ID, R, A))

    def Guardar(self, ID: str, R: str, A: str) -> bool:
        """Writes the parameters to file A.cfp of folder R; False when that fails."""
        return bool(_invoke(self._oleobj_, 0x60030002, _METHOD, VT_BOOL, (VT_BSTR, VT_BSTR, VT_BSTR), ID, R, A))

    def CadenaADO(self, ID: str, Adm: bool) -> str:
        """OLE DB connection string with the administrator's or the client's account."""
        return _text(_invoke(self._oleobj_, 0x60030003, _METHOD, VT_BSTR, (VT_BSTR, VT_BOOL), ID, Adm))

    def CadenaADOUsuario(self, Usuario: str, Clave: str) -> str:
        """OLE DB connection string with this account."""
        return _text(_invoke(self._oleobj_, 0x60030004, _METHOD, VT_BSTR, (VT_BSTR, VT_BSTR), Usuario, Clave))

    def TextoAValor(self, TipoTNFL: str, Texto: str) -> Any:
        """Value of a typed text; type T text, N number, F date, L logical."""
        return _value(_invoke(self._oleobj_, 0x60030005, _METHOD, VT_VARIANT, (VT_BSTR, VT_BSTR), TipoTNFL, Texto))

    def ValorATexto(self, TipoTNFL: str, Valor: Value) -> str:
        """Typed text of a value; type T text, N number, F date, L logical."""
        return _text(_invoke(self._oleobj_, 0x60030006, _METHOD, VT_BSTR, (VT_BSTR, VT_VARIANT), TipoTNFL, Valor))

    @property
    def Archivo(self) -> str:
        """Name of the file that the parameters came from or were saved to."""
        return _text(_invoke(self._oleobj_, 0x68030007, _GET, VT_BSTR, ()))

    @property
    def MotorBD(self) -> int:
        """Database engine; 0 when not set."""
        return int(_invoke(self._oleobj_, 0x68030008, _GET, VT_I4, ()))

    @property
    def Provider(self) -> str:
        """OLE DB provider."""
        return _text(_invoke(self._oleobj_, 0x68030009, _GET, VT_BSTR, ()))

    @property
    def DataSource(self) -> str:
        """Database file, server or service name."""
        return _text(_invoke(self._oleobj_, 0x6803000A, _GET, VT_BSTR, ()))

    @property
    def InitialCatalogOTablespace(self) -> str:
        """SQL Server catalogue or Oracle tablespace."""
        return _text(_invoke(self._oleobj_, 0x6803000B, _GET, VT_BSTR, ()))

    @property
    def UsuarioAdm(self) -> str:
        """Administrator user."""
        return _text(_invoke(self._oleobj_, 0x6803000C, _GET, VT_BSTR, ()))

    @property
    def UsuarioCli(self) -> str:
        """Client user."""
        return _text(_invoke(self._oleobj_, 0x6803000D, _GET, VT_BSTR, ()))

    @property
    def OtrosParametros(self) -> str:
        """Further connection options, appended as they stand."""
        return _text(_invoke(self._oleobj_, 0x6803000E, _GET, VT_BSTR, ()))

    def ClaveAdm(self, ID: str) -> str:
        """Administrator password."""
        return _text(_invoke(self._oleobj_, 0x6803000F, _GET, VT_BSTR, (VT_BSTR,), ID))

    def ClaveCli(self, ID: str) -> str:
        """Client password."""
        return _text(_invoke(self._oleobj_, 0x68030010, _GET, VT_BSTR, (VT_BSTR,), ID))

    def ComillasSQL(self, Cadena: str) -> str:
        """Text in quotes, its own quotes doubled."""
        return _text(_invoke(self._oleobj_, 0x60030011, _METHOD, VT_BSTR, (VT_BSTR,), Cadena))

    def ExpSQL(self, Valor: Value) -> str:
        """Literal of a value, chosen by its type."""
        return _text(_invoke(self._oleobj_, 0x60030012, _METHOD, VT_BSTR, (VT_VARIANT,), Valor))

    def FechaSQL(self, Fecha: Value) -> str:
        """Date literal; Null for what is no date."""
        return _text(_invoke(self._oleobj_, 0x60030013, _METHOD, VT_BSTR, (VT_VARIANT,), Fecha))

    def HoraSQL(self, Fecha: Value) -> str:
        """Time literal; Null for what is no date."""
        return _text(_invoke(self._oleobj_, 0x60030014, _METHOD, VT_BSTR, (VT_VARIANT,), Fecha))

    def FechaHoraSQL(self, Fecha: Value) -> str:
        """Date and time literal, or the clock for Ahora; Null for what is no date."""
        return _text(_invoke(self._oleobj_, 0x60030015, _METHOD, VT_BSTR, (VT_VARIANT,), Fecha))

    def FechaSQLv(self, Fecha: Value) -> str:
        """Date, time or date and time literal, the narrowest that holds the value."""
        return _text(_invoke(self._oleobj_, 0x60030016, _METHOD, VT_BSTR, (VT_VARIANT,), Fecha))

    def LogicoSQL(self, Valor: bool) -> str:
        """Truth literal."""
        return _text(_invoke(self._oleobj_, 0x60030017, _METHOD, VT_BSTR, (VT_BOOL,), Valor))

    def AhoraSQL(self) -> str:
        """The server's clock as an expression."""
        return _text(_invoke(self._oleobj_, 0x60030018, _METHOD, VT_BSTR, ()))

    def sqlEsTrue(self, Campo: str) -> str:
        """Condition that the field is true."""
        return _text(_invoke(self._oleobj_, 0x60030019, _METHOD, VT_BSTR, (VT_BSTR,), Campo))

    def sqlEsFalse(self, Campo: str) -> str:
        """Condition that the field is false."""
        return _text(_invoke(self._oleobj_, 0x6003001A, _METHOD, VT_BSTR, (VT_BSTR,), Campo))

    def sqlFalse(self) -> str:
        """The false constant."""
        return _text(_invoke(self._oleobj_, 0x6003001B, _METHOD, VT_BSTR, ()))

    def CadenaParaLikeSQL(self, Cadena: str, ComodinInicial: bool = _LEFT_OUT, ComodinFinal: bool = _LEFT_OUT) -> str:
        """Quoted LIKE pattern of a text with * and ?."""
        return _text(_invoke(self._oleobj_, 0x6003001C, _METHOD, VT_BSTR, (VT_BSTR, VT_BOOL, VT_BOOL), Cadena,
            ComodinInicial, ComodinFinal))

    def sqlFechaSistema(self) -> str:
        """Statement that reads the server's clock into a column FechaSistema."""
        return _text(_invoke(self._oleobj_, 0x6003001D, _METHOD, VT_BSTR, ()))

    def sqlTOP(self, Numero: int) -> str:
        """Limit of rows before the select list; empty for Oracle."""
        return _text(_invoke(self._oleobj_, 0x6003001E, _METHOD, VT_BSTR, (VT_I4,), Numero))

    def sqlRowNum(self, Numero: int, AnteponerAndSiProcede: bool) -> str:
        """Limit of rows as a condition; empty but for Oracle."""
        return _text(_invoke(self._oleobj_, 0x6003001F, _METHOD, VT_BSTR, (VT_I4, VT_BOOL), Numero,
            AnteponerAndSiProcede))

    def sqlWhereRelacionTablas(self, mCampo1Campo2Relacion: Value) -> str:
        """Join condition for triples of column, column and relation I, L or R."""
        return _text(_invoke(self._oleobj_, 0x60030020, _METHOD, VT_BSTR, (VT_VARIANT,), mCampo1Campo2Relacion))

    def sqlAlias(self, Alias: str) -> str:
        """Name of a column in the result."""
        return _text(_invoke(self._oleobj_, 0x60030021, _METHOD, VT_BSTR, (VT_BSTR,), Alias))

    def sqlConcatenar(self, Cadenas: Value) -> str:
        """Concatenation of expressions."""
        return _text(_invoke(self._oleobj_, 0x60030022, _METHOD, VT_BSTR, (VT_VARIANT,), Cadenas))

    def sqlEsNulo(self, CampoComprobar: str, CampoAlternativo: str) -> str:
        """The field, or the alternative where it is null."""
        return _text(_invoke(self._oleobj_, 0x60030023, _METHOD, VT_BSTR, (VT_BSTR, VT_BSTR), CampoComprobar,
            CampoAlternativo))

    def sqlCASE(self, Campo: str, ParejasValoresMasOmision: Value) -> str:
        """Field mapped by pairs of value and result, an odd last one being the default."""
        return _text(_invoke(self._oleobj_, 0x60030024, _METHOD, VT_BSTR, (VT_BSTR, VT_VARIANT), Campo,
            ParejasValoresMasOmision))

    def SqlINSERT(self, NombreTabla: str, MValores: Value) -> str:
        """INSERT statement without a list of columns."""
        return _text(_invoke(self._oleobj_, 0x60030025, _METHOD, VT_BSTR, (VT_BSTR, VT_VARIANT), NombreTabla,
            MValores))

    def SqlUPDATE(self, NombreTabla: str, NombreCampoClave: str, Clave_cd: int, MCampos: Value,
            MValores: Value) -> str:
        """UPDATE statement for the row with this whole-number key."""
        return _text(_invoke(self._oleobj_, 0x60030026, _METHOD, VT_BSTR, (VT_BSTR, VT_BSTR, VT_I4, VT_VARIANT,
            VT_VARIANT), NombreTabla, NombreCampoClave, Clave_cd, MCampos, MValores))

    def SqlInsert2(self, NombreTabla: str, MCampos: Value, MValores: Value) -> str:
        """INSERT statement with a list of columns."""
        return _text(_invoke(self._oleobj_, 0x60030027, _METHOD, VT_BSTR, (VT_BSTR, VT_VARIANT, VT_VARIANT),
            NombreTabla, MCampos, MValores))

    def SqlUpdate2(self, NombreTabla: str, MCampos: Value, MValores: Value, Condicion: str) -> str:
        """UPDATE statement with a condition of any form."""
        return _text(_invoke(self._oleobj_, 0x60030028, _METHOD, VT_BSTR, (VT_BSTR, VT_VARIANT, VT_VARIANT, VT_BSTR),
            NombreTabla, MCampos, MValores, Condicion))

    def EjecutarProcSQL7(self, Conexion: Any, NombreProc: str, Parametros: Value) -> tuple[bool, Any]:
        """Calls a stored procedure of SQL Server; output values come back in the array."""
        answer, changed = _invoke(self._oleobj_, 0x60030029, _METHOD, VT_BOOL, (VT_DISPATCH, VT_BSTR,
            VT_VARIANT | VT_BYREF), Conexion, NombreProc, Parametros)
        return bool(answer), _value(changed)

    def AgregarParametroADO(self, Comando: Any, TipoSQLServer: str, Nombre: str, Valor: Value = _LEFT_OUT,
            Ancho: int = _LEFT_OUT, Direction: ParameterDirectionEnum | int = _LEFT_OUT) -> bool:
        """Appends a parameter whose type fits the engine to a command."""
        return bool(_invoke(self._oleobj_, 0x6003002A, _METHOD, VT_BOOL, (VT_DISPATCH, VT_BSTR, VT_BSTR, VT_VARIANT,
            VT_I4, VT_I4), Comando, TipoSQLServer, Nombre, Valor, Ancho, Direction))


class QVRScr(_Object):
    """Script runner."""

    _class_id_ = "{6DE5A4C3-8FE3-4F71-92FE-614AC0AC1795}"
    _interface_id_ = "{B61FE2B6-C646-4E64-84E0-8397AED80B1E}"

    def __init__(self, existing: Any = None) -> None:
        super().__init__(existing)
        self._events = _Events()
        self._connection = SimpleConnection(self, self._events, _EVENTS_ID)

    def EjecutarComandos(self, ID: str, MotorBD: int, TextosComandos: str, CadenaConexion: str,
            TextoMostrar: str = "") -> tuple[bool, str]:
        """Runs commands separated by GO lines in one transaction; True when the list ran to its end."""
        answer, changed = _invoke(self._oleobj_, 0x60030000, _METHOD, VT_BOOL, (VT_BSTR, VT_I4, VT_BSTR, VT_BSTR,
            VT_BSTR | VT_BYREF), ID, MotorBD, TextosComandos, CadenaConexion, TextoMostrar)
        return bool(answer), _text(changed)

    def Ejecutar1Comando(self, Conexion: Any, TextoComando: str, MotorBD: int) -> bool:
        """Runs one command on an open connection; False after the failure was reported."""
        return bool(_invoke(self._oleobj_, 0x60030001, _METHOD, VT_BOOL, (VT_DISPATCH, VT_BSTR, VT_I4), Conexion,
            TextoComando, MotorBD))

    def UsuarioSegunMotor(self, MotorBD: int) -> str:
        """The engine's built-in administrator account."""
        return _text(_invoke(self._oleobj_, 0x60030002, _METHOD, VT_BSTR, (VT_I4,), MotorBD))

    def CargarDefinicion(self, ID: str, MotorBD: int, Ruta: str, NombreDefinicion: str, NombreBaseOTablespace: str,
            UsuarioQVRAdm: str, ClaveUsuarioQVRAdm: str, UsuarioQVRCli: str, ClaveUsuarioQVRCli: str,
            Encri: bool) -> str:
        """Text of the scripts that create a database, ready to be run; empty when one cannot be read."""
        return _text(_invoke(self._oleobj_, 0x60030003, _METHOD, VT_BSTR, (VT_BSTR, VT_I4, VT_BSTR, VT_BSTR, VT_BSTR,
            VT_BSTR, VT_BSTR, VT_BSTR, VT_BSTR, VT_BOOL), ID, MotorBD, Ruta, NombreDefinicion, NombreBaseOTablespace,
            UsuarioQVRAdm, ClaveUsuarioQVRAdm, UsuarioQVRCli, ClaveUsuarioQVRCli, Encri))

    def CargarActualizacion(self, ID: str, MotorBD: int, Ruta: str, Aplicacion: str, VersionActual: int,
            NombreBaseOTablespace: str, UsuarioQVRAdm: str, ClaveUsuarioQVRAdm: str, UsuarioQVRCli: str,
            ClaveUsuarioQVRCli: str, Encri: bool) -> str:
        """Text of the scripts that update a database from a version on; empty when there is none."""
        return _text(_invoke(self._oleobj_, 0x60030004, _METHOD, VT_BSTR, (VT_BSTR, VT_I4, VT_BSTR, VT_BSTR, VT_I4,
            VT_BSTR, VT_BSTR, VT_BSTR, VT_BSTR, VT_BSTR, VT_BOOL), ID, MotorBD, Ruta, Aplicacion, VersionActual,
            NombreBaseOTablespace, UsuarioQVRAdm, ClaveUsuarioQVRAdm, UsuarioQVRCli, ClaveUsuarioQVRCli, Encri))

    @property
    def on_progreso(self) -> Callable[[str], object] | None:
        """A progress text; it is called with that, or None."""
        return self._events.on_progreso

    @on_progreso.setter
    def on_progreso(self, handler: Callable[[str], object] | None) -> None:
        self._events.on_progreso = handler

    @property
    def on_terminado(self) -> Callable[[bool], object] | None:
        """The end of a run, with its outcome; it is called with that, or None."""
        return self._events.on_terminado

    @on_terminado.setter
    def on_terminado(self, handler: Callable[[bool], object] | None) -> None:
        self._events.on_terminado = handler


class QVRprp(_Object):
    """List of typed, named values."""

    _class_id_ = "{B988C177-C827-40D6-A593-5FCF12B22492}"
    _interface_id_ = "{16D61E78-756E-463D-A7D4-1F40B9AC3BE3}"

    def Borra(self) -> None:
        """Removes every property."""
        _invoke(self._oleobj_, 0x60030000, _METHOD, VT_VOID, ())

    def CreaPropiedad(self, Tipo: str, Nombre: str, Valor: Value) -> None:
        """Adds a property; type T text, N number, F date, L logical."""
        _invoke(self._oleobj_, 0x60030001, _METHOD, VT_VOID, (VT_BSTR, VT_BSTR, VT_VARIANT), Tipo, Nombre, Valor)

    def Item(self, NombreOIndice: Value) -> Any:
        """Value of a property by its name or its position from 0; Empty for none."""
        return _value(_invoke(self._oleobj_, 0x00000000, _GET, VT_VARIANT, (VT_VARIANT,), NombreOIndice))

    def SetItem(self, NombreOIndice: Value, Valor: Value) -> None:
        """Value of a property by its name or its position from 0; Empty for none."""
        _invoke(self._oleobj_, 0x00000000, _PUT, VT_VOID, (VT_VARIANT, VT_VARIANT), NombreOIndice, Valor)

    @property
    def NumPropiedades(self) -> int:
        """Number of properties."""
        return int(_invoke(self._oleobj_, 0x68030003, _GET, VT_I4, ()))

    def NombrePropiedad(self, Indice: int) -> str:
        """Name of the property at a position from 0; empty for none."""
        return _text(_invoke(self._oleobj_, 0x68030004, _GET, VT_BSTR, (VT_I4,), Indice))


class cSQL20(iSQL20):
    """Query of one SELECT statement."""

    _class_id_ = "{85011860-D958-4D78-88D8-2470229F6C32}"
    _interface_id_ = "{86A157CE-9E1D-4DB0-BD1D-2F178CBF9FFB}"

    def __init__(self, existing: Any = None) -> None:
        super().__init__(existing)

    @property
    def Name(self) -> str:
        """Name of the class."""
        return _text(_invoke(self._oleobj_, 0x68030001, _GET, VT_BSTR, ()))

    def AmpliarCondicionHaving(self, Condicion: str, Criterio: str = _LEFT_OUT) -> bool:
        """Narrows the groups; False for an empty condition and for one that is there already."""
        return bool(_invoke(self._oleobj_, 0x60030007, _METHOD, VT_BOOL, (VT_BSTR, VT_BSTR), Condicion, Criterio))

    def CambiaCondicion(self, NuevaCondicionWhere: str, NuevaCondicionHaving: str) -> None:
        """Replaces the query's conditions; what was added goes."""
        _invoke(self._oleobj_, 0x60030008, _METHOD, VT_VOID, (VT_BSTR, VT_BSTR), NuevaCondicionWhere,
            NuevaCondicionHaving)

    def ParteWhere(self, SoloCondicion: bool = _LEFT_OUT) -> str:
        """The current WHERE clause, or its condition alone."""
        return _text(_invoke(self._oleobj_, 0x6003000D, _METHOD, VT_BSTR, (VT_BOOL,), SoloCondicion))

    def ParteHaving(self, SoloCondicion: bool = _LEFT_OUT) -> str:
        """The current HAVING clause, or its condition alone."""
        return _text(_invoke(self._oleobj_, 0x6003000E, _METHOD, VT_BSTR, (VT_BOOL,), SoloCondicion))

    def ExpresionOriginal(self, NombreCampoRS: str) -> str:
        """Expression of the column with this name in a record set."""
        return _text(_invoke(self._oleobj_, 0x60030012, _METHOD, VT_BSTR, (VT_BSTR,), NombreCampoRS))


class uSQL20(iSQL20):
    """Query of several SELECT statements joined by UNION."""

    _class_id_ = "{177DE812-A9F3-4C4F-8A6D-3F234C4314A3}"
    _interface_id_ = "{54F7E510-C21E-4EDA-920D-7E68CA3884F6}"

    def __init__(self, existing: Any = None) -> None:
        super().__init__(existing)

    @property
    def Name(self) -> str:
        """Name of the class."""
        return _text(_invoke(self._oleobj_, 0x68030000, _GET, VT_BSTR, ()))
