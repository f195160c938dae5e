// The library from C# through an interop assembly: Early FOLDER [PROVIDER OPTIONS]
//   tlbimp QVRlib21.dll /namespace:QVRlib21 /out:QVRlib21.Interop.dll
//   csc /platform:x86 /reference:QVRlib21.Interop.dll Early.cs
// Arguments go by reference, so each is a variable. Microsoft's newer compilers let you leave "ref" out.
using System;
using QVRlib21;

class Program
{
    string id = "hosts of QVRlib21", file = "hosts", folder;
    string provider = "SQLOLEDB", options = "Integrated Security=SSPI;";
    QVRcfp parameters = new QVRcfp();
    int engine;

    // Automation objects of this kind want the thread that made them.
    [STAThread]
    static int Main(string[] args)
    {
        if (args.Length != 1 && args.Length != 3)
        {
            Console.Error.WriteLine("usage: Early FOLDER [PROVIDER OPTIONS]");
            return 2;
        }
        Program program = new Program();
        program.folder = args[0];
        if (args.Length == 3)
        {
            program.provider = args[1];
            program.options = args[2];
        }
        program.OpenParameters();
        program.ShowQuery();
        program.RunScript();
        program.ShowProperties();
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
    void OpenParameters()
    {
        if (parameters.Crear(ref id, ref folder, ref file))
        {
            Console.WriteLine("Connection file: there already");
        }
        else
        {
            WriteParameters();
            Console.WriteLine("Connection file: created");
            parameters = new QVRcfp();
            Expect(parameters.Crear(ref id, ref folder, ref file), "Crear");
        }
        engine = (int)parameters.MotorBD;
        Console.WriteLine("Opened: {0}, engine {1}", parameters.Archivo, engine);
    }

    void WriteParameters()
    {
        QVRcfp made = new QVRcfp();
        MotoresBD sqlServer = MotoresBD.MotorBDSQLServer;
        string source = "(local)", catalogue = "tempdb", none = "";
        Expect(made.Asignar(ref id, ref sqlServer, ref provider, ref source, ref catalogue, ref none, ref none,
                            ref none, ref none, ref options), "Asignar");
        Expect(made.Guardar(ref id, ref folder, ref file), "Guardar");
    }

    // Held by the contract, the members have their own names; cSQL20's own interface puts iSQL20_ in front.
    void ShowQuery()
    {
        _iSQL20 query = (_iSQL20)new cSQL20();
        object columns = new object[] { "C.Nombre", "T+", "P.Fecha", "F+", "P.Importe", "N>Total" };
        object relations = new object[] { "C.Id", "P.IdCliente", "L" };
        string name = "Clientes", tables = "Clientes C, Pedidos P", column = "Nombre", search = "ana; luis", none = "";
        bool distinct = false;
        short groups = 0, date = 2;  // columns count from 1
        int all = 0, language = 0;
        Expect(query.Crear(ref engine, ref name, ref distinct, ref columns, ref tables, ref relations, ref none,
                           ref groups, ref none, ref none, ref all, ref language), "Crear");
        Console.WriteLine("Search understood: " + YesNo(query.InterpretarBusqueda(ref column, ref search, ref none)));
        query.AmpliarOrden(ref date);  // the answer is always false
        Console.WriteLine("Criterion: " + query.CriterioActual);
        Console.WriteLine("SQL: " + query.SQL);
    }

    void RunScript()
    {
        string commands = "CREATE TABLE Avisos (Numero INTEGER)\r\nGO\r\nDROP TABLE Avisos\r\nGO\r\n";
        bool administrator = true;
        string connection = parameters.CadenaADO(ref id, ref administrator);
        QVRScr script = new QVRScr();
        script.Progreso += (ref string message) => Console.WriteLine("Progress: " + message);
        script.Terminado += (ref bool success) => Console.WriteLine("Finished: " + YesNo(success));
        // A text to show that is empty comes back as the one that was shown.
        string shown = "";
        bool ran = script.EjecutarComandos(ref id, ref engine, ref commands, ref connection, ref shown);
        Console.WriteLine("Script ran: " + YesNo(ran));
        Console.WriteLine("By reference: [" + shown + "]");
    }

    static void Add(QVRprp properties, string kind, string name, object value)
    {
        properties.CreaPropiedad(ref kind, ref name, ref value);
    }

    // A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike everywhere.
    void ShowProperties()
    {
        QVRprp properties = new QVRprp();
        string[] kinds = { "T", "N", "F" };
        Add(properties, "T", "Titulo", "Pedidos");
        Add(properties, "N", "Margen", 12.5);
        Add(properties, "F", "Desde", new DateTime(2024, 3, 1));
        for (int i = 0; i < properties.NumPropiedades; i++)
        {
            // A property with arguments by reference is read through its accessor.
            object index = i, value = properties.get_Item(ref index);
            Console.WriteLine("Property {0}: {1} = {2}", i, properties.get_NombrePropiedad(ref i),
                              parameters.ValorATexto(ref kinds[i], ref value));
        }
    }
}
