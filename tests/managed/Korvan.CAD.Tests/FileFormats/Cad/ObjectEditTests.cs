using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>A property that is changed after loading changes its own fields, and no others.</summary>
public class ObjectEditTests
{
    // What other fields follow from: the kind of a value, the form of the object, where it belongs.
    private static readonly string[] Decisive =
        ["ObjectHandle", "SoftOwner", "SpaceMode", "LayoutTabName", "ValueType", "Code", "SolidFillFlag", "Flags",
            "HardOwner", "OutputType", "HasBackClipping", "HasFrontClipping", "SelectRangeOfDates", "ColumnCount",
            "RowCount", "ActionVersion", "IsGradient", "GradientName",
            "CoordinateSystemDefinition", "HasName", "ConstantWidth"];

    public static IEnumerable<object[]> Types => ObjectSamples.All.Select(sample => new object[] { sample.Type });

    [Theory]
    [MemberData(nameof(Types))]
    public void One_property_changes_its_own_fields_alone(string type)
    {
        var sample = ObjectSamples.All.Single(one => one.Type == type);
        byte[] file = ObjectSampleTests.File(type, sample.Fields);
        string[] before = Written(DxfText.Load(file), type);
        Type declared = ObjectSampleTests.Find(DxfText.Load(file)).GetType();
        foreach (PropertyInfo property in declared.GetProperties().Where(IsField))
        {
            DxfImage image = DxfText.Load(file);
            CadBaseObject item = ObjectSampleTests.Find(image);
            object? changed = Changed(property.GetValue(item));
            if (changed is null || !TrySet(property, item, changed))
            {
                continue;
            }

            string[] after = Written(image, type);
            VerifyChange(property, before, after);
            object? again = property.GetValue(ObjectSampleTests.Find(DxfText.Reload(image)));
            bool isWritten = !before.SequenceEqual(after);
            Assert.True(!isWritten || Same(changed, again), $"{property.Name}: {again} instead of {changed}");
        }
    }

    // A point has three fields; a field that was left out for its default may come in.
    private static void VerifyChange(PropertyInfo property, string[] before, string[] after)
    {
        List<string> lost = [.. before];
        List<string> added = [.. after.Where(tag => !lost.Remove(tag))];
        int[] codes = [.. lost.Concat(added).Select(static tag => int.Parse(
            tag[..tag.IndexOf(':', StringComparison.Ordinal)], System.Globalization.CultureInfo.InvariantCulture))];
        bool isOneField = codes.Select(static code => code is (>= 10 and < 40) or (>= 210 and < 240)
            or (>= 1010 and < 1040) or (>= 110 and < 140) ? code % 10 : code).Distinct().Count() <= 1;
        Assert.True(
            isOneField && lost.Count <= 3 && added.Count <= 3,
            $"{property.Name}: {string.Join(", ", lost)} became {string.Join(", ", added)}");
    }

    private static string[] Written(CadImage image, string type) =>
        [.. ObjectSampleTests.WithoutOwner(ObjectSampleTests.Written(image, type))];

    private static bool IsField(PropertyInfo property) => property.SetMethod is { IsPublic: true }
        && property.GetIndexParameters().Length == 0 && !Decisive.Contains(property.Name);

    private static object? Changed(object? value) => value switch
    {
        double number => number + 0.5,
        short number => (short)(number + 1),
        int number => number + 1,
        bool flag => !flag,
        string { Length: < 200 } text => text == "A9" ? "B9" : "A9",
        Cad3DPoint point => new Cad3DPoint(point.X + 1, point.Y, point.Z),
        Cad2DPoint point => new Cad2DPoint(point.X, point.Y + 1),
        _ => null,
    };

    private static bool TrySet(PropertyInfo property, CadBaseObject item, object value)
    {
        try
        {
            property.SetValue(item, value);
            return true;
        }
        catch (TargetInvocationException failure) when (failure.InnerException is ArgumentException)
        {
            return false; // beyond the range of the property
        }
    }

    private static bool Same(object expected, object? actual) => (expected, actual) switch
    {
        (Cad3DPoint a, Cad3DPoint b) => a.Is(b.X, b.Y, b.Z),
        (Cad2DPoint a, Cad2DPoint b) => (a.X, a.Y) == (b.X, b.Y),
        (double a, double b) => Math.Abs(a - b) < 1e-12 * Math.Max(1, Math.Abs(a)),
        _ => expected.Equals(actual),
    };
}
