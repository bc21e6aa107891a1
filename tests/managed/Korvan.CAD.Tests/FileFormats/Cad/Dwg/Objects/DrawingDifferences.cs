using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadParameters;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;

/// <summary>Compares two drawings object by object: classes, fields, owners, extended data, and the order of
/// entities.</summary>
internal static class DrawingDifferences
{
    /// <summary>Returns what differs, one line each. Objects of one drawing alone are left out: programs add
    /// some.</summary>
    internal static List<string> Between(CadDrawing actual, CadDrawing expected, Predicate<CadBaseObject> isCompared)
    {
        List<string> found = [];
        Dictionary<ulong, CadBaseObject> others = ByHandle(actual);
        foreach ((ulong handle, CadBaseObject item) in ByHandle(expected).Where(pair => isCompared(pair.Value)))
        {
            if (others.GetValueOrDefault(handle) is not { } other)
            {
                found.Add($"{item.DxfName} {handle:X} is missing");
            }
            else if (other.GetType() != item.GetType())
            {
                found.Add($"{item.DxfName} {handle:X} is a {other.GetType().Name}, not a {item.GetType().Name}");
            }
            else
            {
                Compare(other, item, $"{item.DxfName} {handle:X}", found);
            }
        }

        return found;
    }

    /// <summary>Returns the fields of an object by subclass and group code; those of one group code together.</summary>
    internal static Dictionary<string, string> FieldsOf(CadBaseObject item) => item.GetParameters()
        .GroupBy(static field => $"{field.Subclass} {field.Attribute}")
        .ToDictionary(static group => group.Key, static group => string.Join("|", group.Select(ValueOf)));

    private static Dictionary<ulong, CadBaseObject> ByHandle(CadDrawing drawing)
    {
        Dictionary<ulong, CadBaseObject> found = [];
        foreach (CadBaseObject item in DrawingWalk.All(drawing).Where(static item => item.Handle != 0))
        {
            found.TryAdd(item.Handle, item);
        }

        return found;
    }

    private static void Compare(CadBaseObject actual, CadBaseObject expected, string name, List<string> found)
    {
        Dictionary<string, string> others = FieldsOf(actual);
        foreach ((string field, string value) in FieldsOf(expected))
        {
            string other = others.GetValueOrDefault(field) ?? "nothing";
            if (!AreSame(other, value))
            {
                found.Add($"{name}: {field} is {Short(other)}, not {Short(value)}");
            }
        }

        if ((actual as CadOwnedObjectBase)?.Owner != (expected as CadOwnedObjectBase)?.Owner)
        {
            found.Add($"{name}: another owner");
        }

        if (XdataOf(actual) is var data && data != XdataOf(expected))
        {
            found.Add($"{name}: the extended data is {Short(data)}, not {Short(XdataOf(expected))}");
        }

        if (EntitiesOf(actual) != EntitiesOf(expected))
        {
            found.Add($"{name}: other entities");
        }
    }

    private static string EntitiesOf(CadBaseObject item) => item is CadBlockEntity block
        ? string.Join(",", block.Entities.Select(static entity => entity.ObjectHandle)) : "";

    private static string XdataOf(CadBaseObject item) => string.Join(";", item.XdataContainer.XdataEntities
        .OrderBy(static data => data.RegisteredApplicationName, StringComparer.Ordinal)
        .Select(static data => data.RegisteredApplicationName + ":" + string.Join("|", data.Data.Select(TextOf))));

    private static string TextOf(CadCodeValue tag) => tag.Attribute is >= 1010 and < 1060
        ? $"{tag.GetDoubleValue():G10}" : tag.Value.Trim();

    private static string ValueOf(CadParameter field) => field switch
    {
        CadBinaryParameter binary => Convert.ToHexString(binary.Value),
        CadBoolParameter flag => flag.Value ? "1" : "0",
        CadDoubleParameter number => number.Value.ToString("R"),
        CadIntParameter number => number.Value.ToString(),
        CadLongParameter number => number.Value.ToString(),
        CadShortParameter number => number.Value.ToString(),
        CadStringParameter text => text.Value,
        _ => "",
    };

    // Text files have numbers of 16 digits; names are the same in upper and lower case.
    private static bool AreSame(string actual, string expected)
    {
        string[] left = actual.Split('|');
        string[] right = expected.Split('|');
        return left.Length == right.Length && left.Zip(right).All(static pair =>
            string.Equals(pair.First, pair.Second, StringComparison.OrdinalIgnoreCase)
                || (double.TryParse(pair.First, out double one) && double.TryParse(pair.Second, out double other)
                    && Math.Abs(one - other) <= 1e-8 * Math.Max(1, Math.Abs(other))));
    }

    private static string Short(string text) => text.Length > 60 ? text[..60] + "…" : text;
}
