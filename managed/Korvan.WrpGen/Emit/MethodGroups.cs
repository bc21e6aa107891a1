using System.Collections.Generic;
using System.Linq;
using Korvan.WrpGen.Model;

namespace Korvan.WrpGen.Emit;

/// <summary>The overloads that one Python name of a type stands for, in the order of tries.</summary>
public sealed record MethodGroup(string PythonName, bool IsStatic, IReadOnlyList<MethodModel> Overloads)
{
    /// <summary>
    /// The groups of a type. A name that the type declares itself runs on into the overloads of its bases;
    /// an interface has the names of its base interfaces too.
    /// </summary>
    public static IReadOnlyList<MethodGroup> Of(TypeModel type)
    {
        IReadOnlyList<TypeModel> bases = BasesOf(type);
        IEnumerable<string> names = type.Methods.Select(method => method.PythonName);
        if (type.Kind == BoundKind.Interface)
        {
            names = names.Concat(bases.SelectMany(one => one.Methods).Select(method => method.PythonName));
        }
        return
        [
            .. from name in names.Distinct()
               let overloads = OverloadsOf(type, bases, name)
               from isStatic in new[] { false, true }
               let form = overloads.Where(overload => overload.IsStatic == isStatic).ToArray()
               where form.Length > 0
               select new MethodGroup(name, isStatic, form),
        ];
    }

    /// <summary>The instance properties, those of base interfaces included.</summary>
    public static IReadOnlyList<PropertyModel> PropertiesOf(TypeModel type) => type.Kind != BoundKind.Interface
        ? type.Properties
        : [.. type.Properties.Concat(BasesOf(type).SelectMany(one => one.Properties)).DistinctBy(p => p.PythonName)];

    private static IReadOnlyList<TypeModel> BasesOf(TypeModel type)
    {
        if (type.Kind == BoundKind.Interface)
        {
            return [.. type.Interfaces.Select(use => use.Interface)];
        }
        var bases = new List<TypeModel>();
        for (TypeModel? level = type.Base; level is not null; level = level.Base)
        {
            bases.Add(level);
        }
        return bases;
    }

    private static List<MethodModel> OverloadsOf(TypeModel type, IEnumerable<TypeModel> bases, string name)
    {
        var overloads = new List<MethodModel>();
        foreach (TypeModel level in bases.Prepend(type))
        {
            IEnumerable<MethodModel> own = level.OrderedMethods.Where(method => method.PythonName == name);
            overloads.AddRange(
                own.Where(method => !overloads.Any(overload => overload.HidesSameSignature(method))).ToArray());
        }
        return overloads;
    }
}
