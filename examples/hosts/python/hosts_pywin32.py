"""The library from Python with pywin32: python hosts_pywin32.py FOLDER [PROVIDER OPTIONS]

Python's width must be the library's.  pip install pywin32
"""
import datetime
import sys

from win32com.client import Dispatch, DispatchWithEvents

ID = "hosts of QVRlib21"
SQL_SERVER = 2
COMMANDS = "CREATE TABLE Avisos (Numero INTEGER)\r\nGO\r\nDROP TABLE Avisos\r\nGO\r\n"


def answer(result):
    """The answer alone: with a wrapper made by makepy, all arguments by reference come back behind it."""
    return result[0] if isinstance(result, tuple) else result


def yes_no(truth):
    return "yes" if truth else "no"


def expect(result, member):
    if not answer(result):
        raise RuntimeError(member + " answered False")


def open_parameters(folder, provider, options):
    """A file that is not there yet is written once; Crear then reads it into a new object."""
    found = Dispatch("QVRlib21.QVRcfp")
    if answer(found.Crear(ID, folder, "hosts")):
        print("Connection file: there already")
    else:
        made = Dispatch("QVRlib21.QVRcfp")
        expect(made.Asignar(ID, SQL_SERVER, provider, "(local)", "tempdb", "", "", "", "", options), "Asignar")
        expect(made.Guardar(ID, folder, "hosts"), "Guardar")
        print("Connection file: created")
        found = Dispatch("QVRlib21.QVRcfp")
        expect(found.Crear(ID, folder, "hosts"), "Crear")
    print(f"Opened: {found.Archivo}, engine {found.MotorBD}")
    return found


def show_query(engine):
    """The class's own interface has the contract's members with iSQL20_ in front of their names."""
    query = Dispatch("QVRlib21.cSQL20")
    columns = ["C.Nombre", "T+", "P.Fecha", "F+", "P.Importe", "N>Total"]
    relations = ["C.Id", "P.IdCliente", "L"]
    expect(query.iSQL20_Crear(engine, "Clientes", False, columns, "Clientes C, Pedidos P", relations), "iSQL20_Crear")
    print("Search understood:", yes_no(answer(query.iSQL20_InterpretarBusqueda("Nombre", "ana; luis"))))
    query.iSQL20_AmpliarOrden(2)  # columns count from 1; the answer is always False
    print("Criterion:", query.iSQL20_CriterioActual)
    print("SQL:", query.iSQL20_SQL)


class ScriptEvents:
    def OnProgreso(self, message):
        print("Progress:", message)

    def OnTerminado(self, success):
        print("Finished:", yes_no(success))


def run_script(parameters):
    """Listening to events makes a wrapper, so that the run answers with its changed arguments behind the answer."""
    script = DispatchWithEvents("QVRlib21.QVRScr", ScriptEvents)
    connection = answer(parameters.CadenaADO(ID, True))
    # A text to show that is empty comes back as the one that was shown: the last argument.
    ran, *changed = script.EjecutarComandos(ID, parameters.MotorBD, COMMANDS, connection, "")
    print("Script ran:", yes_no(ran))
    print(f"By reference: [{changed[-1]}]")


def show_properties(parameters):
    """A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike."""
    properties = Dispatch("QVRlib21.QVRprp")
    properties.CreaPropiedad("T", "Titulo", "Pedidos")
    properties.CreaPropiedad("N", "Margen", 12.5)
    properties.CreaPropiedad("F", "Desde", datetime.datetime(2024, 3, 1))
    for i, kind in enumerate("TNF"):
        value = answer(properties.Item(i))
        if kind == "F":
            # pywin32 gives dates a time zone; without it the same day goes back.
            value = value.replace(tzinfo=None)
        name = answer(properties.NombrePropiedad(i))
        print(f"Property {i}: {name} = {answer(parameters.ValorATexto(kind, value))}")


def main(arguments):
    if len(arguments) not in (1, 3):
        sys.exit("usage: python hosts_pywin32.py FOLDER [PROVIDER OPTIONS]")
    if len(arguments) == 1:
        arguments = arguments + ["SQLOLEDB", "Integrated Security=SSPI;"]
    folder, provider, options = arguments
    parameters = open_parameters(folder, provider, options)
    show_query(parameters.MotorBD)
    run_script(parameters)
    show_properties(parameters)


if __name__ == "__main__":
    main(sys.argv[1:])
