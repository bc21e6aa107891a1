using System;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using System.Reflection;
using System.Runtime.CompilerServices;

namespace Korvan.CAD.Tests.Surface;

/// <summary>The public surface of an assembly as text: a line for each type and each member that programs can
/// use.</summary>
internal static class SurfaceText
{
    private const BindingFlags Declared = BindingFlags.Public | BindingFlags.NonPublic | BindingFlags.Instance
        | BindingFlags.Static | BindingFlags.DeclaredOnly;

    private static readonly NullabilityInfoContext Nullability = new();

    internal static IEnumerable<string> LinesOf(Assembly assembly) =>
        assembly.GetExportedTypes().OrderBy(static type => type.FullName, StringComparer.Ordinal).SelectMany(LinesOf);

    internal static IEnumerable<string> LinesOf(Type type)
    {
        yield return Declaration(type);
        IEnumerable<string> members = type.IsEnum
            ? Enum.GetNames(type).Select(name => $"{name} = {Number(type, name)}")
            : type.GetMembers(Declared).Select(Line).Where(static line => line is not null)
                .Select(static line => line!);
        foreach (string line in members.Order(StringComparer.Ordinal))
        {
            yield return "  " + line;
        }
    }

    private static string Declaration(Type type)
    {
        string kind = type.IsEnum ? "enum" : type.IsInterface ? "interface" : type.IsValueType ? "struct"
            : typeof(Delegate).IsAssignableFrom(type) ? "delegate" : "class";
        string modifier = type is { IsAbstract: true, IsSealed: true } ? "static "
            : type.IsInterface || type.IsValueType ? ""
            : type.IsAbstract ? "abstract " : type.IsSealed ? "sealed " : "";
        IEnumerable<Type> inherited = type.IsEnum ? [Enum.GetUnderlyingType(type)]
            : new[] { type.BaseType }.OfType<Type>()
                .Where(static one => one != typeof(object) && one != typeof(ValueType))
                .Concat(type.GetInterfaces().Except(type.BaseType?.GetInterfaces() ?? [])
                    .Where(static one => one.IsVisible)
                    .OrderBy(static one => one.FullName, StringComparer.Ordinal));
        string bases = string.Join(", ", inherited.Select(Name));
        return $"{modifier}{kind} {type.Namespace}.{Name(type)}{(bases.Length > 0 ? " : " + bases : "")}";
    }

    private static string Number(Type type, string name) => Convert.ChangeType(
        Enum.Parse(type, name), Enum.GetUnderlyingType(type), CultureInfo.InvariantCulture).ToString()!;

    private static string? Line(MemberInfo member) => member switch
    {
        _ when member.IsDefined(typeof(CompilerGeneratedAttribute)) => null,
        ConstructorInfo made when IsSeen(made) => $"new({Parameters(made)})",
        MethodInfo { IsSpecialName: false } method when IsSeen(method) =>
            $"{Modifiers(method)}{method.Name}{Generic(method)}({Parameters(method)}) -> "
                + Result(method.ReturnParameter),
        MethodInfo method when IsSeen(method) && method.Name.StartsWith("op_", StringComparison.Ordinal) =>
            $"{method.Name}({Parameters(method)}) -> {Name(method.ReturnType)}",
        PropertyInfo property when Accessors(property) is { Length: > 0 } accessors =>
            $"{Modifiers(property.GetMethod ?? property.SetMethod!)}{PropertyName(property)} {{ {accessors} }} -> "
                + Result(property),
        FieldInfo field when field.IsPublic || field.IsFamily =>
            $"{(field.IsStatic ? "static " : "")}{field.Name} -> {Name(field.FieldType)}",
        EventInfo seen => $"event {seen.Name} -> {Name(seen.EventHandlerType!)}",
        _ => null,
    };

    private static bool IsSeen(MethodBase method) => method.IsPublic || method.IsFamily || method.IsFamilyOrAssembly;

    private static string Accessors(PropertyInfo property)
    {
        string get = property.GetMethod is { } reader && IsSeen(reader) ? "get; " : "";
        string set = property.SetMethod is { } writer && IsSeen(writer) ? "set; " : "";
        return (get + set).TrimEnd();
    }

    private static string PropertyName(PropertyInfo property) => property.GetIndexParameters() is { Length: > 0 } index
        ? $"this[{string.Join(", ", index.Select(Parameter))}]"
        : property.Name;

    private static string Modifiers(MethodInfo method) =>
        (method.IsFamily ? "protected " : "") + (method.IsStatic ? "static "
            : method.DeclaringType!.IsInterface ? ""
            : method.GetBaseDefinition() != method ? "override "
            : method.IsAbstract ? "abstract " : method is { IsVirtual: true, IsFinal: false } ? "virtual " : "");

    private static string Generic(MethodInfo method) => method.IsGenericMethod
        ? $"<{string.Join(", ", method.GetGenericArguments().Select(Name))}>"
        : "";

    private static string Parameters(MethodBase method) => string.Join(", ", method.GetParameters().Select(Parameter));

    private static string Parameter(ParameterInfo parameter)
    {
        string passing = parameter.IsOut ? "out " : parameter.ParameterType.IsByRef ? "ref " : "";
        string optional = parameter.HasDefaultValue ? $" = {parameter.DefaultValue ?? "null"}" : "";
        return $"{passing}{Result(parameter)} {parameter.Name}{optional}";
    }

    private static string Result(ParameterInfo parameter) =>
        Name(parameter.ParameterType) + Mark(parameter.ParameterType, Nullability.Create(parameter).ReadState);

    private static string Result(PropertyInfo property) =>
        Name(property.PropertyType) + Mark(property.PropertyType, Nullability.Create(property).ReadState);

    private static string Mark(Type type, NullabilityState state) =>
        state == NullabilityState.Nullable && !type.IsValueType ? "?" : "";

    private static string Name(Type type)
    {
        if (type.IsByRef || type.IsArray)
        {
            return Name(type.GetElementType()!) + (type.IsArray ? "[]" : "");
        }

        string own = type.IsNested && !type.IsGenericParameter
            ? Name(type.DeclaringType!) + "." + type.Name
            : type.Name;
        int arity = own.IndexOf('`', StringComparison.Ordinal);
        return arity < 0 ? own
            : $"{own[..arity]}<{string.Join(", ", type.GetGenericArguments().Select(Name))}>";
    }
}
