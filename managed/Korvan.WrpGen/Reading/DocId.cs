using System;
using System.Linq;
using System.Reflection;

namespace Korvan.WrpGen.Reading;

/// <summary>The names under which the compiler files documentation.</summary>
internal static class DocId
{
    public static string Of(Type type) => "T:" + Name(type);

    public static string Of(FieldInfo field) => $"F:{Name(field.DeclaringType!)}.{field.Name}";

    public static string Of(PropertyInfo property) =>
        $"P:{Name(property.DeclaringType!)}.{property.Name}{Parameters(property.GetIndexParameters())}";

    public static string Of(MethodBase method) =>
        $"M:{Name(method.DeclaringType!)}.{method.Name.Replace('.', '#')}{Parameters(method.GetParameters())}";

    /// <summary>The name that a member has where another type declares it.</summary>
    public static string In(Type type, Type declaring, string id) =>
        id[..2] + Name(type) + id[(2 + Name(declaring).Length)..];

    private static string Parameters(ParameterInfo[] parameters) => parameters.Length == 0
        ? ""
        : $"({string.Join(",", parameters.Select(parameter => Name(parameter.ParameterType)))})";

    private static string Name(Type type)
    {
        if (type.IsByRef)
        {
            return Name(type.GetElementType()!) + "@";
        }
        if (type.IsArray)
        {
            return Name(type.GetElementType()!) + "[]";
        }
        if (type.IsGenericParameter)
        {
            return "`" + type.GenericParameterPosition;
        }
        if (!type.IsGenericType || type.IsGenericTypeDefinition)
        {
            return type.FullName!.Replace('+', '.');
        }
        string name = type.GetGenericTypeDefinition().FullName!.Replace('+', '.');
        return $"{name[..name.IndexOf('`')]}{{{string.Join(",", type.GetGenericArguments().Select(Name))}}}";
    }
}
