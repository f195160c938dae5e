// Prints what the compiled C# import declares: its enumerations, and its raw interfaces with their members in the order
// of their slots.
using System;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;
using QVRlib21;

static class CSharpImportContract
{
    static void Main()
    {
        foreach (Type type in typeof(MotoresBD).Assembly.GetTypes().OrderBy(each => each.MetadataToken))
        {
            if (type.IsEnum) PrintEnum(type);
            if (type.IsInterface) PrintInterface(type);
        }
    }

    static void PrintEnum(Type type)
    {
        Console.WriteLine("enum " + type.Name);
        foreach (string name in Enum.GetNames(type))
        {
            Console.WriteLine("  {0} = {1}", name, Convert.ToInt64(Enum.Parse(type, name)));
        }
    }

    static void PrintInterface(Type type)
    {
        object[] kinds = type.GetCustomAttributes(typeof(InterfaceTypeAttribute), false);
        string kind = kinds.Length == 0 ? "no kind" : ((InterfaceTypeAttribute)kinds[0]).Value.ToString();
        Console.WriteLine("{0} {1} {{{2}}}{3}", kind, type.Name, type.GUID.ToString().ToUpperInvariant(),
                          type.IsImport ? "" : " not imported");
        foreach (MethodInfo method in type.GetMethods().OrderBy(each => each.MetadataToken))
        {
            object[] numbers = method.GetCustomAttributes(typeof(DispIdAttribute), false);
            Console.WriteLine("  0x{0:x} {1}({2}) {3}", numbers.Length == 0 ? -1 : ((DispIdAttribute)numbers[0]).Value,
                              method.Name, string.Join(", ", method.GetParameters().Select(TextOf)),
                              TypeOf(method.ReturnParameter));
        }
    }

    static string TextOf(ParameterInfo parameter)
    {
        string marks = (parameter.IsIn ? "in" : "") + (parameter.IsOut ? ",out" : "") +
                       (parameter.IsOptional ? ",optional" : "");
        object value = (parameter.Attributes & ParameterAttributes.HasDefault) != 0 ? parameter.RawDefaultValue : null;
        string constant = value == null ? "" : value is string ? " = \"" + value + "\"" : " = " + Convert.ToInt64(value);
        return "[" + marks + "] " + TypeOf(parameter) + " " + parameter.Name + constant;
    }

    static string TypeOf(ParameterInfo parameter)
    {
        object[] marshalled = parameter.GetCustomAttributes(typeof(MarshalAsAttribute), false);
        string how = marshalled.Length == 0 ? "" : " as " + ((MarshalAsAttribute)marshalled[0]).Value;
        return parameter.ParameterType.Name + how;
    }
}
