// The library from C# by the names of its members: Dynamic FOLDER [PROVIDER OPTIONS]
//   csc /platform:x86 Dynamic.cs        the platform is the width of the library that is registered
using System;

static class Program
{
    const string Id = "hosts of QVRlib21";
    const int SqlServer = 2;
    const string Commands = "CREATE TABLE Avisos (Numero INTEGER)\r\nGO\r\nDROP TABLE Avisos\r\nGO\r\n";

    // Automation objects of this kind want the thread that made them.
    [STAThread]
    static int Main(string[] args)
    {
        if (args.Length != 1 && args.Length != 3)
        {
            Console.Error.WriteLine("usage: Dynamic FOLDER [PROVIDER OPTIONS]");
            return 2;
        }
        string provider = args.Length == 3 ? args[1] : "SQLOLEDB";
        string options = args.Length == 3 ? args[2] : "Integrated Security=SSPI;";
        dynamic parameters = OpenParameters(args[0], provider, options);
        ShowQuery(parameters.MotorBD);
        RunScript(parameters);
        ShowProperties(parameters);
        return 0;
    }

    static dynamic Create(string programId)
    {
        return Activator.CreateInstance(Type.GetTypeFromProgID(programId, true));
    }

    static string YesNo(bool truth)
    {
        return truth ? "yes" : "no";
    }

    static void Expect(bool done, string member)
    {
        if (!done) throw new InvalidOperationException(member + " answered False");
    }

    // A file that is not there yet is written once; Crear then reads it into a new object.
    static dynamic OpenParameters(string folder, string provider, string options)
    {
        dynamic found = Create("QVRlib21.QVRcfp");
        if (found.Crear(Id, folder, "hosts"))
        {
            Console.WriteLine("Connection file: there already");
        }
        else
        {
            dynamic made = Create("QVRlib21.QVRcfp");
            Expect(made.Asignar(Id, SqlServer, provider, "(local)", "tempdb", "", "", "", "", options), "Asignar");
            Expect(made.Guardar(Id, folder, "hosts"), "Guardar");
            Console.WriteLine("Connection file: created");
            found = Create("QVRlib21.QVRcfp");
            Expect(found.Crear(Id, folder, "hosts"), "Crear");
        }
        Console.WriteLine("Opened: {0}, engine {1}", (string)found.Archivo, (int)found.MotorBD);
        return found;
    }

    // The class's own interface has the contract's members with iSQL20_ in front of their names.
    static void ShowQuery(int engine)
    {
        dynamic query = Create("QVRlib21.cSQL20");
        object[] columns = { "C.Nombre", "T+", "P.Fecha", "F+", "P.Importe", "N>Total" };
        object[] relations = { "C.Id", "P.IdCliente", "L" };
        Expect(query.iSQL20_Crear(engine, "Clientes", false, columns, "Clientes C, Pedidos P", relations),
               "iSQL20_Crear");
        Console.WriteLine("Search understood: " + YesNo(query.iSQL20_InterpretarBusqueda("Nombre", "ana; luis")));
        query.iSQL20_AmpliarOrden(2);  // columns count from 1; the answer is always false
        Console.WriteLine("Criterion: " + query.iSQL20_CriterioActual);
        Console.WriteLine("SQL: " + query.iSQL20_SQL);
    }

    static void RunScript(dynamic parameters)
    {
        dynamic script = Create("QVRlib21.QVRScr");
        script.Progreso += new Action<string>(message => Console.WriteLine("Progress: " + message));
        script.Terminado += new Action<bool>(success => Console.WriteLine("Finished: " + YesNo(success)));
        // A text to show that is empty comes back as the one that was shown.
        string shown = "";
        bool ran = script.EjecutarComandos(Id, parameters.MotorBD, Commands, parameters.CadenaADO(Id, true), ref shown);
        Console.WriteLine("Script ran: " + YesNo(ran));
        Console.WriteLine("By reference: [" + shown + "]");
    }

    // A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike everywhere.
    static void ShowProperties(dynamic parameters)
    {
        dynamic properties = Create("QVRlib21.QVRprp");
        string[] kinds = { "T", "N", "F" };
        properties.CreaPropiedad("T", "Titulo", "Pedidos");
        properties.CreaPropiedad("N", "Margen", 12.5);
        properties.CreaPropiedad("F", "Desde", new DateTime(2024, 3, 1));
        for (int i = 0; i < properties.NumPropiedades; i++)
        {
            Console.WriteLine("Property {0}: {1} = {2}", i, (string)properties.NombrePropiedad(i),
                              (string)parameters.ValorATexto(kinds[i], properties.Item(i)));
        }
    }
}
