// The library from C# through its import, a source file: Early FOLDER [PROVIDER OPTIONS]
//   csc /platform:x86 Early.cs ..\..\..\imports\csharp\QVRlib21.cs
using System;
using QVRlib21;

class Program
{
    const string Id = "hosts of QVRlib21";

    // Automation objects of this kind want the thread that made them.
    [STAThread]
    static int Main(string[] args)
    {
        if (args.Length != 1 && args.Length != 3)
        {
            Console.Error.WriteLine("usage: Early FOLDER [PROVIDER OPTIONS]");
            return 2;
        }
        QVRcfp parameters = args.Length == 3 ? OpenParameters(args[0], args[1], args[2])
                                             : OpenParameters(args[0], "SQLOLEDB", "Integrated Security=SSPI;");
        ShowQuery(parameters.MotorBD);
        RunScript(parameters);
        ShowProperties(parameters);
        return 0;
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
    static QVRcfp OpenParameters(string folder, string provider, string options)
    {
        QVRcfp found = new QVRcfp();
        if (found.Crear(Id, folder, "hosts"))
        {
            Console.WriteLine("Connection file: there already");
        }
        else
        {
            QVRcfp made = new QVRcfp();
            Expect(made.Asignar(Id, MotoresBD.MotorBDSQLServer, provider, "(local)", "tempdb", "", "", "", "", options),
                   "Asignar");
            Expect(made.Guardar(Id, folder, "hosts"), "Guardar");
            Console.WriteLine("Connection file: created");
            found = new QVRcfp();
            Expect(found.Crear(Id, folder, "hosts"), "Crear");
        }
        Console.WriteLine("Opened: {0}, engine {1}", found.Archivo, (int)found.MotorBD);
        return found;
    }

    static void ShowQuery(MotoresBD engine)
    {
        cSQL20 query = new cSQL20();
        object[] columns = { "C.Nombre", "T+", "P.Fecha", "F+", "P.Importe", "N>Total" };
        object[] relations = { "C.Id", "P.IdCliente", "L" };
        Expect(query.Crear(engine, "Clientes", false, columns, "Clientes C, Pedidos P", relations), "Crear");
        Console.WriteLine("Search understood: " + YesNo(query.InterpretarBusqueda("Nombre", "ana; luis")));
        query.AmpliarOrden(2);  // columns count from 1; the answer is always false
        Console.WriteLine("Criterion: " + query.CriterioActual);
        Console.WriteLine("SQL: " + query.SQL);
    }

    static void RunScript(QVRcfp parameters)
    {
        const string commands = "CREATE TABLE Avisos (Numero INTEGER)\r\nGO\r\nDROP TABLE Avisos\r\nGO\r\n";
        // The events end with the block.
        using (QVRScr script = new QVRScr())
        {
            script.Progreso += message => Console.WriteLine("Progress: " + message);
            script.Terminado += success => Console.WriteLine("Finished: " + YesNo(success));
            // A text to show that is empty comes back as the one that was shown.
            string shown = "";
            bool ran = script.EjecutarComandos(Id, parameters.MotorBD, commands, parameters.CadenaADO(Id, true),
                                               ref shown);
            Console.WriteLine("Script ran: " + YesNo(ran));
            Console.WriteLine("By reference: [" + shown + "]");
        }
    }

    // A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike everywhere.
    static void ShowProperties(QVRcfp parameters)
    {
        QVRprp properties = new QVRprp();
        string[] kinds = { "T", "N", "F" };
        properties.CreaPropiedad("T", "Titulo", "Pedidos");
        properties.CreaPropiedad("N", "Margen", 12.5);
        properties.CreaPropiedad("F", "Desde", new DateTime(2024, 3, 1));
        for (int i = 0; i < properties.NumPropiedades; i++)
        {
            Console.WriteLine("Property {0}: {1} = {2}", i, properties.NombrePropiedad(i),
                              parameters.ValorATexto(kinds[i], properties[i]));
        }
    }
}
