// Calls every member of the C# import's classes on objects that note what reaches them: which member of an interface,
// with which arguments; and that what they answer comes back. Prints a line for each finding, and the number of calls.
using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices.ComTypes;
using System.Runtime.Remoting;
using System.Runtime.Remoting.Messaging;
using System.Runtime.Remoting.Proxies;
using QVRlib21;
using QVRlib21.Raw;

// An object of every interface. It changes all that goes by reference.
class Noting : RealProxy, IRemotingTypeInfo
{
    public string Called;
    public object[] Given;
    public object[] Changed;
    public object Answer;

    public Noting(Type type) : base(type)
    {
    }

    public string TypeName { get; set; }

    public bool CanCastTo(Type type, object instance)
    {
        return type.IsInterface;
    }

    public override IMessage Invoke(IMessage message)
    {
        IMethodCallMessage call = (IMethodCallMessage)message;
        MethodInfo method = (MethodInfo)call.MethodBase;
        Called = method.Name;
        Given = (object[])call.Args.Clone();
        Changed = method.GetParameters().Select(each => Values.Of(each.ParameterType, 50 + each.Position)).ToArray();
        Answer = method.ReturnType == typeof(void) ? null : Values.Of(method.ReturnType, 90);
        return new ReturnMessage(Answer, Changed, Changed.Length, call.LogicalCallContext, call);
    }
}

static class Values
{
    // Four rounds tell sixteen truths from each other; the other values are unlike for each position.
    public const int Rounds = 4;
    public static int Round;

    public static object Of(Type type, int position)
    {
        if (type.IsByRef) type = type.GetElementType();
        if (type == typeof(string)) return "text " + position;
        if (type == typeof(bool)) return (position >> Round & 1) == 0;
        if (type == typeof(short)) return (short)(300 + position);
        if (type == typeof(int)) return 70000 + position;
        if (type.IsEnum) return Enum.ToObject(type, 1 + position);
        return new object[] { position };
    }

    // A number where a class shows an enumeration is the same one to the interface.
    public static bool Same(object one, object other)
    {
        if (one is Enum) one = Convert.ToInt32(one);
        if (other is Enum) other = Convert.ToInt32(other);
        object[] first = one as object[], second = other as object[];
        return first != null && second != null ? first.SequenceEqual(second) : Equals(one, other);
    }
}

// A script runner whose events can be raised.
class Runner : _QVRScr, IConnectionPointContainer, IConnectionPoint
{
    public __QVRScr Sink;
    public string Shown;
    public int Connections;

    public bool EjecutarComandos(ref string ID, ref int MotorBD, ref string TextosComandos, ref string CadenaConexion,
                                 ref string TextoMostrar)
    {
        Shown = TextoMostrar;
        TextoMostrar = "shown";
        string message = "one";
        bool success = true;
        if (Sink != null) Sink.Progreso(ref message);
        if (Sink != null) Sink.Terminado(ref success);
        return true;
    }

    public void FindConnectionPoint(ref Guid id, out IConnectionPoint found)
    {
        found = id == typeof(__QVRScr).GUID ? this : null;
    }

    public void Advise(object sink, out int cookie)
    {
        Sink = (__QVRScr)sink;
        ++Connections;
        cookie = 7;
    }

    public void Unadvise(int cookie)
    {
        if (cookie == 7) Sink = null;
    }

    public bool Ejecutar1Comando(ref object Conexion, ref string TextoComando, ref int MotorBD)
    {
        throw new NotSupportedException();
    }

    public string UsuarioSegunMotor(ref int MotorBD)
    {
        throw new NotSupportedException();
    }

    public string CargarDefinicion(ref string ID, ref int MotorBD, ref string Ruta, ref string NombreDefinicion,
                                   ref string NombreBaseOTablespace, ref string UsuarioQVRAdm,
                                   ref string ClaveUsuarioQVRAdm, ref string UsuarioQVRCli,
                                   ref string ClaveUsuarioQVRCli, ref bool Encri)
    {
        throw new NotSupportedException();
    }

    public string CargarActualizacion(ref string ID, ref int MotorBD, ref string Ruta, ref string Aplicacion,
                                      ref int VersionActual, ref string NombreBaseOTablespace,
                                      ref string UsuarioQVRAdm, ref string ClaveUsuarioQVRAdm,
                                      ref string UsuarioQVRCli, ref string ClaveUsuarioQVRCli, ref bool Encri)
    {
        throw new NotSupportedException();
    }

    public void EnumConnectionPoints(out IEnumConnectionPoints points)
    {
        throw new NotSupportedException();
    }

    public void EnumConnections(out IEnumConnections connections)
    {
        throw new NotSupportedException();
    }

    public void GetConnectionInterface(out Guid id)
    {
        throw new NotSupportedException();
    }

    public void GetConnectionPointContainer(out IConnectionPointContainer container)
    {
        throw new NotSupportedException();
    }
}

static class CSharpImportCalls
{
    static int calls, findings;

    static void Expect(bool truth, string what)
    {
        ++calls;
        if (truth) return;
        ++findings;
        Console.WriteLine(what);
    }

    static int Main()
    {
        Type[] types = typeof(iSQL20).Assembly.GetExportedTypes().Where(IsOverAnObject).ToArray();
        for (Values.Round = 0; Values.Round < Values.Rounds; ++Values.Round) Array.ForEach(types, CallAll);
        LeaveOut();
        HearEvents();
        Console.WriteLine("{0} calls, {1} findings", calls, findings);
        return findings == 0 ? 0 : 1;
    }

    static ConstructorInfo TakingAnObject(Type type)
    {
        return type.GetConstructors().FirstOrDefault(
            each => each.GetParameters().Length == 1 && each.GetParameters()[0].ParameterType.IsImport);
    }

    static bool IsOverAnObject(Type type)
    {
        return type.IsClass && TakingAnObject(type) != null;
    }

    static void CallAll(Type type)
    {
        Type over = TakingAnObject(type).GetParameters()[0].ParameterType;
        Noting noting = new Noting(over);
        object made = Activator.CreateInstance(type, noting.GetTransparentProxy());
        HashSet<string> reached = new HashSet<string>();
        const BindingFlags own = BindingFlags.Public | BindingFlags.Instance | BindingFlags.DeclaredOnly;
        foreach (MethodInfo method in type.GetMethods(own))
        {
            bool events = method.Name.StartsWith("add_") || method.Name.StartsWith("remove_") || method.Name == "Dispose";
            if (!events && !method.ReturnType.IsImport) reached.Add(CallOne(method, made, noting));
        }
        foreach (MethodInfo member in over.GetMethods())
        {
            // The contract's members of a query are those of the class that it derives from.
            bool contract = member.Name.Contains("iSQL20_");
            Expect(reached.Contains(member.Name) != contract, type.Name + " calls " + member.Name + ": " + contract);
        }
    }

    // Of a class's member and an interface's.
    static bool Fit(string shown, string called)
    {
        return called == shown || called == "get_" + shown ||
               (shown.StartsWith("set_") && called == "put_" + shown.Substring(4));
    }

    static string CallOne(MethodInfo method, object made, Noting noting)
    {
        string name = method.DeclaringType.Name + "." + method.Name;
        ParameterInfo[] parameters = method.GetParameters();
        object[] given = parameters.Select(each => Values.Of(each.ParameterType, each.Position)).ToArray();
        object[] left = (object[])given.Clone();
        noting.Called = null;
        object answer = method.Invoke(made, left);
        Expect(noting.Called != null && Fit(method.Name, noting.Called), name + " calls " + noting.Called);
        if (noting.Called == null) return "";
        Expect(given.Length == noting.Given.Length && given.Zip(noting.Given, Values.Same).All(same => same),
               name + " gives other arguments than it takes");
        Expect(Values.Same(answer, noting.Answer), name + " answers " + answer);
        for (int i = 0; i < parameters.Length; i++)
        {
            object wanted = parameters[i].ParameterType.IsByRef ? noting.Changed[i] : given[i];
            Expect(Values.Same(left[i], wanted), name + " leaves " + left[i] + " in " + parameters[i].Name);
        }
        return noting.Called;
    }

    static void LeaveOut()
    {
        Noting noting = new Noting(typeof(_cSQL20));
        cSQL20 query = new cSQL20((_cSQL20)noting.GetTransparentProxy());
        query.Crear(MotoresBD.MotorBDOracle, "name", false, "columns", "tables");
        object[] wanted = { 3, "name", false, "columns", "tables", Type.Missing, "", (short)0, "", "", 0, 0 };
        Expect(wanted.SequenceEqual(noting.Given), "Crear gives " + string.Join(", ", noting.Given));
        query.Crear(MotoresBD.MotorBDOracle, "name", false, "columns", "tables", null);
        Expect(noting.Given[5] == null, "Crear gives " + noting.Given[5] + " for null");
        QVRcfp parameters = new QVRcfp((_QVRcfp)new Noting(typeof(_QVRcfp)).GetTransparentProxy());
        object[] values = { 1 };
        parameters.EjecutarProcSQL7("connection", "procedure", ref values);
        Expect(Equals(values[0], 52), "EjecutarProcSQL7 leaves " + values[0]);
    }

    static void HearEvents()
    {
        Runner runner = new Runner();
        QVRScr script = new QVRScr(runner);
        string heard = "", shown = "";
        script.EjecutarComandos("", MotoresBD.MotorBDJet, "", "");
        Expect(runner.Connections == 0 && runner.Shown == "", "without handlers: " + runner.Connections);
        Action<string> progress = message => heard += message;
        script.Progreso += progress;
        script.Terminado += success => heard += success;
        script.EjecutarComandos("", MotoresBD.MotorBDJet, "", "", ref shown);
        Expect(heard == "oneTrue" && shown == "shown", "heard " + heard + ", shown " + shown);
        Expect(runner.Connections == 1, "connected " + runner.Connections + " times");
        script.Progreso -= progress;
        script.EjecutarComandos("", MotoresBD.MotorBDJet, "", "");
        Expect(heard == "oneTrueTrue", "heard " + heard + " without the first handler");
        script.Dispose();
        script.Dispose();
        Expect(runner.Sink == null, "still connected");
    }
}
