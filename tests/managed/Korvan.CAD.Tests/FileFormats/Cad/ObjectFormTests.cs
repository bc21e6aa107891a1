using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Samples of objects in the forms that other programs and damage give them: nothing of a file is lost, and
/// changes take effect.</summary>
public class ObjectFormTests
{
    private const string Unknown = "437 unknown";

    // What states which of the other fields there are.
    private static readonly (string Type, string Field)[] StatesForm =
        [("HATCH", "70 0"), ("BLOCKGRIPLOCATIONCOMPONENT", "70 40")];

    public static IEnumerable<object[]> Types => ObjectSamples.All.Select(sample => new object[] { sample.Type });

    /// <summary>Gets the types whose fields come in declared order.</summary>
    public static IEnumerable<object[]> OrderedTypes => Types.Where(static type =>
        ObjectSampleTests.Find(DxfText.Load(ObjectSampleTests.File(
            (string)type[0], string.Join('|', FieldsOf((string)type[0]))))).HasOrderedFields);

    [Theory]
    [MemberData(nameof(Types))]
    public void Fields_that_the_class_does_not_have_are_kept_wherever_they_are(string type)
    {
        string[] fields = FieldsOf(type);
        int first = type is "HATCH" or "MESH" ? fields.Length : 1; // their parts are one sequence
        for (int i = first; i <= fields.Length; i++)
        {
            if (i == fields.Length || !IsBound(fields[i]))
            {
                (string[] lost, string[] added) = Difference(type, [.. fields[..i], Unknown, .. fields[i..]]);
                Assert.True(lost.Length + added.Length == 0, $"after {fields[i - 1]}: {Text(lost)} / {Text(added)}");
            }
        }
    }

    [Theory]
    [MemberData(nameof(OrderedTypes))]
    public void What_is_left_of_an_object_survives_where_a_field_is_missing(string type)
    {
        string[] fields = FieldsOf(type);
        for (int i = 1; i < fields.Length; i++)
        {
            if (!IsBound(fields[i]))
            {
                (string[] lost, _) = Difference(type, [.. fields[..i], .. fields[(i + 1)..]]);
                Assert.True(lost.Length == 0, $"without {fields[i]}: {Text(lost)}");
            }
        }
    }

    [Theory]
    [MemberData(nameof(OrderedTypes))]
    public void An_object_that_is_cut_off_keeps_what_was_before(string type)
    {
        string[] fields = FieldsOf(type);
        for (int i = 1; i < fields.Length; i++)
        {
            if (!IsBound(fields[i]))
            {
                (string[] lost, _) = Difference(type, fields[..i]);
                Assert.True(lost.Length == 0, $"before {fields[i]}: {Text(lost)}");
            }
        }
    }

    [Theory]
    [MemberData(nameof(Types))]
    public void Changes_are_written_though_a_field_is_missing(string type)
    {
        var sample = ObjectSamples.All.Single(one => one.Type == type);
        string[] fields = FieldsOf(type);
        Assert.True(TryLoad(type, fields, out DxfImage? whole));
        bool isKept = TryChange(sample.Change, sample.Get, whole!, out object? expected);
        for (int i = 1; i < fields.Length; i++)
        {
            if (StatesForm.Contains((type, fields[i]))
                || !TryLoad(type, [.. fields[..i], .. fields[(i + 1)..]], out DxfImage? image)
                || !TryChange(sample.Change, sample.Get, image!, out object? changed)
                || (isKept && !expected!.Equals(changed)))
            {
                continue; // the value depends on this field
            }

            object actual = sample.Get(ObjectSampleTests.Find(DxfText.Reload(image!)));
            Assert.True(changed!.Equals(actual), $"without {fields[i]}: {actual} instead of {changed}");
        }
    }

    [Theory]
    [MemberData(nameof(Types))]
    public void Subclasses_may_come_in_any_order(string type)
    {
        var sample = ObjectSamples.All.Single(one => one.Type == type);
        List<List<string>> subclasses = [];
        foreach (string field in FieldsOf(type))
        {
            if (field.StartsWith("100 ", StringComparison.Ordinal))
            {
                subclasses.Add([]);
            }

            subclasses[^1].Add(field);
        }

        subclasses.Reverse();
        string[] fields = [.. subclasses.SelectMany(static part => part)];
        (string[] lost, string[] added) = Difference(type, fields);
        Assert.True(lost.Length + added.Length == 0, $"{Text(lost)} / {Text(added)}");
        Assert.True(TryLoad(type, fields, out DxfImage? image));
        Assert.Equal(sample.Expected, sample.Get(ObjectSampleTests.Find(image!)));
    }

    [Theory]
    [MemberData(nameof(Types))]
    public void Any_value_of_an_integer_is_read_or_refused(string type)
    {
        string[] fields = FieldsOf(type);
        for (int i = 1; i < fields.Length; i++)
        {
            int code = int.Parse(fields[i].Split(' ')[0], System.Globalization.CultureInfo.InvariantCulture);
            if (code is (>= 60 and < 100) or (>= 170 and < 180) or (>= 270 and < 300))
            {
                foreach (int value in code is >= 90 and < 100 ? [-1, int.MinValue, int.MaxValue] : new[] { -1, 32767 })
                {
                    string[] changed = [.. fields];
                    changed[i] = $"{code} {value}";
                    if (TryLoad(type, changed, out DxfImage? image))
                    {
                        DxfText.Reload(image!);
                    }
                }
            }
        }
    }

    [Theory]
    [MemberData(nameof(Types))]
    public void Binary_files_have_the_same_fields(string type)
    {
        var sample = ObjectSamples.All.Single(one => one.Type == type);
        DxfImage image = DxfText.Load(ObjectSampleTests.File(type, sample.Fields));
        string[] before = ObjectSampleTests.Written(image, type);
        image.Drawing.IsBinary = true;
        using MemoryStream stream = new();
        image.Save(stream);
        Assert.StartsWith("AutoCAD Binary", Encoding.Latin1.GetString(stream.ToArray()), StringComparison.Ordinal);
        DxfImage again = DxfText.Load(stream.ToArray());
        Assert.Equal(sample.Expected, sample.Get(ObjectSampleTests.Find(again)));
        again.Drawing.IsBinary = false;
        Assert.Equal(before, ObjectSampleTests.Written(again, type));
    }

    // The length of data and the last chunk of a string follow from what is there.
    private static bool IsBound(string field) => field.Split(' ')[0] is "310" or "301";

    private static (string[] Lost, string[] Added) Difference(string type, string[] fields)
    {
        if (!TryLoad(type, fields, out DxfImage? image))
        {
            return ([], []);
        }

        byte[] file = ObjectSampleTests.File(type, string.Join('|', fields));
        string[] before = [.. ObjectSampleTests.WithoutOwner(TagList.Objects(file, type)["ABC"])];
        string[] after = [.. ObjectSampleTests.WithoutOwner(ObjectSampleTests.Written(image!, type))];
        return (Without(before, after), Without(after, before));
    }

    private static string[] Without(string[] tags, string[] others)
    {
        List<string> left = [.. tags];
        Array.ForEach(others, tag => left.Remove(tag));
        return [.. left];
    }

    // A count that is not that of the items after it is refused by name.
    private static bool TryLoad(string type, string[] fields, out DxfImage? image)
    {
        try
        {
            image = DxfText.Load(ObjectSampleTests.File(type, string.Join('|', fields)));
            return true;
        }
        catch (ImageLoadException)
        {
            image = null;
            return false;
        }
    }

    private static bool TryChange(
        Action<CadBaseObject> change, Func<CadBaseObject, object> get, CadImage image, out object? value)
    {
        try
        {
            change(ObjectSampleTests.Find(image));
            value = get(ObjectSampleTests.Find(image));
            return true;
        }
        catch (Exception failure) when (failure is ArgumentOutOfRangeException or IndexOutOfRangeException)
        {
            value = null;
            return false;
        }
    }

    private static string Text(string[] tags) => string.Join(", ", tags);

    private static string[] FieldsOf(string type) =>
        ObjectSamples.All.Single(one => one.Type == type).Fields.Split('|');
}
