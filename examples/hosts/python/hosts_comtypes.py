"""The library from Python with comtypes, early-bound: python hosts_comtypes.py FOLDER [PROVIDER OPTIONS]

comtypes makes a module of the library's types, with which all arguments by reference come back in front of the answer.
Python's width must be the library's.  pip install comtypes
"""
import datetime
import sys

from comtypes.client import CreateObject, GetEvents, GetModule

ID = "hosts of QVRlib21"
COMMANDS = "CREATE TABLE Avisos (Numero INTEGER)\r\nGO\r\nDROP TABLE Avisos\r\nGO\r\n"
QVRlib21 = GetModule(("{5607725A-CE38-4F60-BDB6-A350A7556FCA}", 1, 1))


def answer(result):
    return result[-1] if isinstance(result, (list, tuple)) else result


def yes_no(truth):
    return "yes" if truth else "no"


def expect(result, member):
    if not answer(result):
        raise RuntimeError(member + " answered False")


def open_parameters(folder, provider, options):
    """A file that is not there yet is written once; Crear then reads it into a new object."""
    found = CreateObject(QVRlib21.QVRcfp)
    if answer(found.Crear(ID, folder, "hosts")):
        print("Connection file: there already")
    else:
        made = CreateObject(QVRlib21.QVRcfp)
        expect(made.Asignar(ID, QVRlib21.MotorBDSQLServer, provider, "(local)", "tempdb", "", "", "", "", options),
               "Asignar")
        expect(made.Guardar(ID, folder, "hosts"), "Guardar")
        print("Connection file: created")
        found = CreateObject(QVRlib21.QVRcfp)
        expect(found.Crear(ID, folder, "hosts"), "Crear")
    print(f"Opened: {found.Archivo}, engine {found.MotorBD}")
    return found


def show_query(engine):
    """Held by the contract, the members have their own names; cSQL20's own interface puts iSQL20_ in front."""
    query = CreateObject(QVRlib21.cSQL20, interface=QVRlib21._iSQL20)
    columns = ["C.Nombre", "T+", "P.Fecha", "F+", "P.Importe", "N>Total"]
    relations = ["C.Id", "P.IdCliente", "L"]
    expect(query.Crear(engine, "Clientes", False, columns, "Clientes C, Pedidos P", relations), "Crear")
    print("Search understood:", yes_no(answer(query.InterpretarBusqueda("Nombre", "ana; luis"))))
    query.AmpliarOrden(2)  # columns count from 1; the answer is always False
    print("Criterion:", query.CriterioActual)
    print("SQL:", query.SQL)


def value_of(argument):
    """An event's argument goes by reference: what it refers to is its element 0."""
    return argument if isinstance(argument, (str, bool)) else argument[0]


class ScriptEvents:
    def Progreso(self, message):
        print("Progress:", value_of(message))

    def Terminado(self, success):
        print("Finished:", yes_no(value_of(success)))


def run_script(parameters):
    script = CreateObject(QVRlib21.QVRScr)
    connection = answer(parameters.CadenaADO(ID, True))
    subscription = GetEvents(script, ScriptEvents())
    # A text to show that is empty comes back as the one that was shown: the last argument.
    *changed, ran = script.EjecutarComandos(ID, parameters.MotorBD, COMMANDS, connection, "")
    del subscription
    print("Script ran:", yes_no(ran))
    print(f"By reference: [{changed[-1]}]")


def show_properties(parameters):
    """A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike."""
    properties = CreateObject(QVRlib21.QVRprp)
    properties.CreaPropiedad("T", "Titulo", "Pedidos")
    properties.CreaPropiedad("N", "Margen", 12.5)
    properties.CreaPropiedad("F", "Desde", datetime.datetime(2024, 3, 1))
    for i, kind in enumerate("TNF"):
        # Properties with arguments take them in brackets.
        name, value = answer(properties.NombrePropiedad[i]), answer(properties.Item[i])
        print(f"Property {i}: {name} = {answer(parameters.ValorATexto(kind, value))}")


def main(arguments):
    if len(arguments) not in (1, 3):
        sys.exit("usage: python hosts_comtypes.py FOLDER [PROVIDER OPTIONS]")
    if len(arguments) == 1:
        arguments = arguments + ["SQLOLEDB", "Integrated Security=SSPI;"]
    folder, provider, options = arguments
    parameters = open_parameters(folder, provider, options)
    show_query(parameters.MotorBD)
    run_script(parameters)
    show_properties(parameters)


if __name__ == "__main__":
    main(sys.argv[1:])
