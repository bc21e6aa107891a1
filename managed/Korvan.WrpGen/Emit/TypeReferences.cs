using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit;

/// <summary>The bound types that a type's tables or stubs name.</summary>
internal static class TypeReferences
{
    public static IEnumerable<TypeModel> Of(TypeModel type)
    {
        IEnumerable<MethodModel> overloads =
            MethodGroup.Of(type).SelectMany(group => group.Overloads).Concat(type.Constructors);
        IEnumerable<PropertyModel> properties =
            MethodGroup.PropertiesOf(type).Concat(type.StaticProperties);
        IEnumerable<TypeModel?> named =
        [
            type.Base,
            type.Outer,
            .. type.Interfaces.Select(use => use.Interface),
            .. overloads
                .SelectMany(overload => overload.Parameters.Select(p => p.Value).Append(overload.Result))
                .SelectMany(Of),
            .. overloads.Select(overload => overload.Owner),
            .. properties.SelectMany(property => Of(property.Value)),
            .. properties.Select(property => property.Owner),
            .. type.ProtocolElement is { } element ? Of(element) : [],
        ];
        return named.OfType<TypeModel>().Distinct();
    }

    private static IEnumerable<TypeModel> Of(ValueUse value)
    {
        for (ValueUse? part = value; part is not null; part = part.Element)
        {
            if (part.Bound is { } bound)
            {
                yield return bound;
            }
        }
    }
}
