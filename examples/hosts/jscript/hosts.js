// The library from JScript: cscript //nologo hosts.js FOLDER [PROVIDER OPTIONS]
// Everything is late-bound. Two things differ from VBScript: a JScript array is an object and no list for the library,
// and JScript passes values only, so that nothing comes back in an argument.

var ID = "hosts of QVRlib21";
var SQL_SERVER = 2;

var args = WScript.Arguments;
if (args.length !== 1 && args.length !== 3) {
  WScript.Echo("usage: cscript //nologo hosts.js FOLDER [PROVIDER OPTIONS]");
  WScript.Quit(2);
}
var folder = args(0);
var provider = args.length === 3 ? args(1) : "SQLOLEDB";
var options = args.length === 3 ? args(2) : "Integrated Security=SSPI;";

function yesNo(truth) {
  return truth ? "yes" : "no";
}

function expect(done, member) {
  if (done) return;
  WScript.Echo(member + " answered False");
  WScript.Quit(1);
}

// A list that the library can walk: the array of Windows' own dictionary.
function list() {
  var dictionary = new ActiveXObject("Scripting.Dictionary");
  for (var i = 0; i < arguments.length; i++) dictionary.Add(i, arguments[i]);
  return dictionary.Items();
}

// A file that is not there yet is written once; Crear then reads it into a new object.
function openedParameters() {
  var found = new ActiveXObject("QVRlib21.QVRcfp");
  if (found.Crear(ID, folder, "hosts")) {
    WScript.Echo("Connection file: there already");
  } else {
    var made = new ActiveXObject("QVRlib21.QVRcfp");
    expect(made.Asignar(ID, SQL_SERVER, provider, "(local)", "tempdb", "", "", "", "", options), "Asignar");
    expect(made.Guardar(ID, folder, "hosts"), "Guardar");
    WScript.Echo("Connection file: created");
    found = new ActiveXObject("QVRlib21.QVRcfp");
    expect(found.Crear(ID, folder, "hosts"), "Crear");
  }
  WScript.Echo("Opened: " + found.Archivo + ", engine " + found.MotorBD);
  return found;
}

// The class's own interface has the contract's members with iSQL20_ in front of their names.
function showQuery(engine) {
  var query = new ActiveXObject("QVRlib21.cSQL20");
  var columns = list("C.Nombre", "T+", "P.Fecha", "F+", "P.Importe", "N>Total");
  var relations = list("C.Id", "P.IdCliente", "L");
  expect(query.iSQL20_Crear(engine, "Clientes", false, columns, "Clientes C, Pedidos P", relations), "iSQL20_Crear");
  WScript.Echo("Search understood: " + yesNo(query.iSQL20_InterpretarBusqueda("Nombre", "ana; luis")));
  query.iSQL20_AmpliarOrden(2);  // columns count from 1; the answer is always false
  WScript.Echo("Criterion: " + query.iSQL20_CriterioActual);
  WScript.Echo("SQL: " + query.iSQL20_SQL);
}

// Windows' script host calls the functions below for the events; a host without such a method runs without them.
function createScriptObject() {
  try {
    return WScript.CreateObject("QVRlib21.QVRScr", "script_");
  } catch (refused) {
    return new ActiveXObject("QVRlib21.QVRScr");
  }
}

function script_Progreso(message) {
  WScript.Echo("Progress: " + message);
}

function script_Terminado(success) {
  WScript.Echo("Finished: " + yesNo(success));
}

function runScript(parameters) {
  var commands = "CREATE TABLE Avisos (Numero INTEGER)\r\nGO\r\nDROP TABLE Avisos\r\nGO\r\n";
  var script = createScriptObject();
  WScript.Echo("Script ran: " + yesNo(script.EjecutarComandos(ID, parameters.MotorBD, commands,
                                                              parameters.CadenaADO(ID, true))));
}

// A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike everywhere.
function showProperties(parameters) {
  var properties = new ActiveXObject("QVRlib21.QVRprp");
  var kinds = ["T", "N", "F"];
  properties.CreaPropiedad("T", "Titulo", "Pedidos");
  properties.CreaPropiedad("N", "Margen", 12.5);
  // A Date of JScript is an object; new Date(2024, 2, 1).getVarDate() makes a date of it where the engine has that.
  properties.CreaPropiedad("F", "Desde", parameters.TextoAValor("F", "2024-03-01"));
  for (var i = 0; i < properties.NumPropiedades; i++) {
    WScript.Echo("Property " + i + ": " + properties.NombrePropiedad(i) + " = " +
                 parameters.ValorATexto(kinds[i], properties.Item(i)));
  }
}

var opened = openedParameters();
showQuery(opened.MotorBD);
runScript(opened);
showProperties(opened);
