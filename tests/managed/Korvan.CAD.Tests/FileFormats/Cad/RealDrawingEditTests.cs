using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Reflection;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Drawings of other programs, changed, moved and damaged.</summary>
public class RealDrawingEditTests
{
    // What other fields depend on.
    private static readonly string[] Decisive = ["HasText", "HasBlock", "SolidFillFlag", "IsGradient", "GradientName",
        "ColumnCount", "RowCount", "Flags", "ValueFlag", "TableValue"];

    [DrawingFact]
    public void Numbers_of_entities_change_no_more_than_a_field()
    {
        HashSet<string> seen = [];
        foreach (CadEntityBase entity in SharedDrawings.AllDxf().SelectMany(static file => Entities(Load(file))))
        {
            foreach (PropertyInfo property in entity.GetType().GetProperties().Where(IsNumber))
            {
                if (seen.Add($"{entity.GetType().Name}.{property.Name}"))
                {
                    VerifyChange(entity, property);
                }
            }
        }

        Assert.True(seen.Count > 200, $"only {seen.Count} properties");
    }

    [DrawingFact]
    public void Entities_that_move_to_a_new_drawing_keep_their_fields()
    {
        foreach (string file in SharedDrawings.AllDxf())
        {
            CadImage source = Load(file);
            CadEntityBase[] originals = [.. source.Entities.Where(static one => one.GetType().Name != "RawEntity")
                .DistinctBy(static one => one.GetType())];
            CadImage target = new();
            Array.ForEach(originals, one => target.AddEntity(one.Clone()));
            CadEntityBase[] again = [.. DxfText.Reload(target).Entities];
            Assert.Equal(originals.Length, again.Length);
            for (int i = 0; i < again.Length; i++)
            {
                string[] before = TagList.Of(originals[i]);
                string[] after = TagList.Of(again[i]);
                if (originals[i] is CadMultiLine)
                {
                    // The style of the name in the new drawing.
                    (before, after) = (WithoutReference(before), WithoutReference(after));
                }

                Assert.True(
                    before.SequenceEqual(after) || originals[i] is CadObjectWithAcisData,
                    $"{Path.GetFileName(file)}, {originals[i]}: {string.Join(", ", before.Except(after))}");
            }
        }
    }

    [DrawingTheory]
    [InlineData("lwg__example_2000.dxf", 11)]
    [InlineData("lwg__example_2018.dxf", 12)]
    [InlineData("lwg__example_r12.dxf", 13)]
    [InlineData("lwg__example_2018.dxfb", 14)]
    [InlineData("ezdxf__uncommon.dxf", 15)]
    public void Damaged_drawings_are_read_or_refused_by_name(string file, int seed)
    {
        byte[] whole = File.ReadAllBytes(SharedDrawings.Dxf(file));
        Random random = new(seed);
        int refused = 0;
        for (int round = 0; round < 12; round++)
        {
            byte[] damaged = round % 2 == 0 ? whole[..random.Next(whole.Length)] : [.. whole];
            for (int i = random.Next(round % 2, 20); i > 0 && damaged.Length > 0; i--)
            {
                damaged[random.Next(damaged.Length)] = (byte)random.Next(256);
            }

            refused += IsRefused(damaged, new LoadOptions()) ? 1 : 0;
            IsRefused(damaged, new LoadOptions { IgnoreErrors = true });
        }

        Assert.True(refused > 5, $"only {refused} of 12 were refused");
    }

    private static string[] WithoutReference(string[] tags) =>
        [.. tags.Where(static tag => !tag.StartsWith("340", StringComparison.Ordinal))];

    private static bool IsRefused(byte[] drawing, LoadOptions options)
    {
        try
        {
            CadImage image = DxfText.Load(drawing, options);
            _ = (image.Width, image.Height, image.GetStrings().Length);
            return false;
        }
        catch (ImageLoadException failure)
        {
            Assert.NotEqual("", failure.Message);
            return true;
        }
    }

    private static void VerifyChange(CadEntityBase entity, PropertyInfo property)
    {
        string[] before = TagList.Of(entity);
        object? old = property.GetValue(entity);
        try
        {
            property.SetValue(
                entity, old switch { double d => d + 1, short s => (short)(s + 1), int i => i + 1, _ => old });
        }
        catch (TargetInvocationException failure) when (failure.InnerException is ArgumentException)
        {
            return; // beyond the range of the property
        }

        string[] after = TagList.Of(entity);
        property.SetValue(entity, old);
        List<string> lost = [.. before];
        int added = after.Count(tag => !lost.Remove(tag));
        Assert.True(lost.Count <= 1 && added <= 1, $"{entity}, {property.Name}: {string.Join(", ", lost)}");
        Assert.Equal(before, TagList.Of(entity));
    }

    private static bool IsNumber(PropertyInfo property) => property.SetMethod is { IsPublic: true }
        && property.GetIndexParameters().Length == 0 && !Decisive.Contains(property.Name)
        && (property.PropertyType == typeof(double) || property.PropertyType == typeof(int)
            || property.PropertyType == typeof(short));

    private static CadImage Load(string file) => (CadImage)Image.Load(file);

    private static IEnumerable<CadEntityBase> Entities(CadImage image) =>
        image.BlockEntities.Items.SelectMany(static block => block.Entities)
            .DistinctBy(static entity => entity.GetType());
}
