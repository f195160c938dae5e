"""The library from Python with pywin32 and its typed import: python hosts_pywin32.py FOLDER [PROVIDER OPTIONS]

Python's width must be the library's.  pip install pywin32  and  set PYTHONPATH=..\\..\\..\\imports\\python
"""
import datetime
import sys

from QVRlib21 import MotoresBD, QVRcfp, QVRprp, QVRScr, cSQL20

ID = "hosts of QVRlib21"
COMMANDS = "CREATE TABLE Avisos (Numero INTEGER)\r\nGO\r\nDROP TABLE Avisos\r\nGO\r\n"


def yes_no(truth: bool) -> str:
    return "yes" if truth else "no"


def expect(result: bool, member: str) -> None:
    if not result:
        raise RuntimeError(member + " answered False")


def open_parameters(folder: str, provider: str, options: str) -> QVRcfp:
    """A file that is not there yet is written once; Crear then reads it into a new object."""
    found = QVRcfp()
    if found.Crear(ID, folder, "hosts"):
        print("Connection file: there already")
    else:
        made = QVRcfp()
        expect(made.Asignar(ID, MotoresBD.MotorBDSQLServer, provider, "(local)", "tempdb", "", "", "", "", options),
               "Asignar")
        expect(made.Guardar(ID, folder, "hosts"), "Guardar")
        print("Connection file: created")
        found = QVRcfp()
        expect(found.Crear(ID, folder, "hosts"), "Crear")
    print(f"Opened: {found.Archivo}, engine {found.MotorBD}")
    return found


def show_query(engine: int) -> None:
    query = cSQL20()
    columns = ["C.Nombre", "T+", "P.Fecha", "F+", "P.Importe", "N>Total"]
    relations = ["C.Id", "P.IdCliente", "L"]
    expect(query.Crear(engine, "Clientes", False, columns, "Clientes C, Pedidos P", relations), "Crear")
    print("Search understood:", yes_no(query.InterpretarBusqueda("Nombre", "ana; luis")))
    query.AmpliarOrden(2)  # columns count from 1; the answer is always False
    print("Criterion:", query.CriterioActual)
    print("SQL:", query.SQL)


def run_script(parameters: QVRcfp) -> None:
    script = QVRScr()
    script.on_progreso = lambda message: print("Progress:", message)
    script.on_terminado = lambda success: print("Finished:", yes_no(success))
    # A text to show that is left out comes back as the one that was shown.
    ran, shown = script.EjecutarComandos(ID, parameters.MotorBD, COMMANDS, parameters.CadenaADO(ID, True))
    print("Script ran:", yes_no(ran))
    print(f"By reference: [{shown}]")


def show_properties(parameters: QVRcfp) -> None:
    """A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike."""
    properties = QVRprp()
    properties.CreaPropiedad("T", "Titulo", "Pedidos")
    properties.CreaPropiedad("N", "Margen", 12.5)
    properties.CreaPropiedad("F", "Desde", datetime.datetime(2024, 3, 1))
    for i, kind in enumerate("TNF"):
        print(f"Property {i}: {properties.NombrePropiedad(i)} = {parameters.ValorATexto(kind, properties.Item(i))}")


def main(arguments: list[str]) -> None:
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
