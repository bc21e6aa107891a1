using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;

namespace Korvan.WrpGen.Reading;

/// <summary>Whether a reference may be null by its declaration, read from the compiler's own marks.</summary>
internal static class Nullability
{
    // Code that was compiled without the marks promises nothing.
    private const byte NeverNull = 1;

    public static bool MayBe(ParameterInfo parameter) => IsWritten(
        parameter.GetCustomAttributesData(),
        (Flag(parameter.GetCustomAttributesData(), "NullableAttribute") ?? ContextOf(parameter.Member)) != NeverNull);

    public static bool MayBe(MemberInfo member)
    {
        MemberInfo around = member is PropertyInfo property ? property.GetMethod ?? member : member;
        return (Flag(member.GetCustomAttributesData(), "NullableAttribute") ?? ContextOf(around)) != NeverNull;
    }

    /// <summary>Whether null may be assigned, which can be more or less than what is read.</summary>
    public static bool MayBeSet(MemberInfo member) => member is PropertyInfo { SetMethod: { } setter }
        ? MayBe(setter.GetParameters()[^1])
        : IsWritten(member.GetCustomAttributesData(), MayBe(member));

    private static bool IsWritten(IEnumerable<CustomAttributeData> attributes, bool declared)
    {
        string[] names = [.. attributes.Select(one => one.AttributeType.Name)];
        return names.Contains("AllowNullAttribute") || (declared && !names.Contains("DisallowNullAttribute"));
    }

    private static byte ContextOf(MemberInfo? member)
    {
        for (; member is not null; member = member.DeclaringType)
        {
            if (Flag(member.GetCustomAttributesData(), "NullableContextAttribute") is { } flag)
            {
                return flag;
            }
        }
        return 0;
    }

    private static byte? Flag(IEnumerable<CustomAttributeData> attributes, string name)
    {
        CustomAttributeData? data = attributes.FirstOrDefault(one => one.AttributeType.Name == name);
        return data?.ConstructorArguments[0].Value switch
        {
            byte flag => flag,
            IReadOnlyCollection<CustomAttributeTypedArgument> flags => (byte)flags.First().Value!,
            _ => null,
        };
    }
}
