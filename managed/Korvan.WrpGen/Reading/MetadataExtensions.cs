using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;

namespace Korvan.WrpGen.Reading;

/// <summary>Questions to types that are read and not loaded: attributes go by name alone.</summary>
internal static class MetadataExtensions
{
    public static bool Has(this MemberInfo member, string attribute) => member.Find(attribute) is not null;

    public static CustomAttributeData? Find(this MemberInfo member, string attribute) =>
        member.GetCustomAttributesData().FirstOrDefault(data => data.AttributeType.Name == attribute);

    public static bool IsGenerated(this MemberInfo member) =>
        member.Has("CompilerGeneratedAttribute") || member.Name.Contains('<');

    /// <summary>Marked so that any use is a compile error.</summary>
    public static bool IsForbidden(this MemberInfo member) =>
        member.Find("ObsoleteAttribute") is { } data &&
        data.ConstructorArguments.Any(argument => argument.Value is true);

    /// <summary>Whether results declared as this class appear as the class that the object is of.</summary>
    public static bool ShowsMostDerived(this Type type)
    {
        for (Type? level = type; level is not null; level = level.BaseType)
        {
            if (level.Has("PythonMostDerivedAttribute"))
            {
                return true;
            }
        }
        return false;
    }

    public static bool IsStaticClass(this Type type) => type.IsClass && type.IsAbstract && type.IsSealed;

    public static bool IsDelegate(this Type type) => type.BaseType?.FullName == "System.MulticastDelegate";

    public static bool IsInitOnly(this MethodInfo setter) =>
        setter.ReturnParameter.GetRequiredCustomModifiers().Any(type => type.Name == "IsExternalInit");

    /// <summary>Public declared members in the order of declaration.</summary>
    public static IEnumerable<T> InOrder<T>(this IEnumerable<T> members) where T : MemberInfo =>
        members.OrderBy(member => member.MetadataToken);

    public static bool HasInterface(this Type type, string fullName) =>
        type.GetInterfaces().Any(one => one.FullName == fullName);

    /// <summary>Its name in C# source.</summary>
    public static string CSharpName(this Type type)
    {
        if (type.IsArray)
        {
            return CSharpName(type.GetElementType()!) + "[]";
        }
        if (!type.IsGenericType)
        {
            return "global::" + type.FullName!.Replace('+', '.');
        }
        string name = type.GetGenericTypeDefinition().FullName!;
        string arguments = string.Join(", ", type.GetGenericArguments().Select(CSharpName));
        return $"global::{name[..name.IndexOf('`')].Replace('+', '.')}<{arguments}>";
    }

    /// <summary>Its full managed name without assemblies, as element hashes take it.</summary>
    public static string ManagedName(this Type type)
    {
        if (type.IsArray)
        {
            return ManagedName(type.GetElementType()!) + "[]";
        }
        if (!type.IsGenericType)
        {
            return type.FullName!;
        }
        string arguments = string.Join(",", type.GetGenericArguments().Select(ManagedName));
        return $"{type.GetGenericTypeDefinition().FullName}[{arguments}]";
    }

    /// <summary><see cref="ManagedName"/>, also of types that no signature of ours can hold.</summary>
    public static string ManagedNameOf(this Type type) =>
        type.IsByRef ? ManagedNameOf(type.GetElementType()!) + "&"
        : type.FullName is null || type.IsPointer ? type.Name
        : type.ManagedName();
}
