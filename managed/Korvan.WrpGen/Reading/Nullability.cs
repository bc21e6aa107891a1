using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;

namespace Korvan.WrpGen.Reading;

/// <summary>Whether a reference may be null by its declaration, read from the compiler's own marks.</summary>
internal static class Nullability
{
    private const byte MayBeNull = 2;

    public static bool MayBe(ParameterInfo parameter) =>
        Flag(parameter.GetCustomAttributesData(), "NullableAttribute") is { } flag
            ? flag == MayBeNull
            : ContextOf(parameter.Member) == MayBeNull;

    public static bool MayBe(MemberInfo member) =>
        Flag(member.GetCustomAttributesData(), "NullableAttribute") is { } flag
            ? flag == MayBeNull
            : ContextOf(member is PropertyInfo property ? property.GetMethod ?? member : member) == MayBeNull;

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
