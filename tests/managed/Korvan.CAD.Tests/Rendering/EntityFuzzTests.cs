using System;
using System.Collections;
using System.IO;
using System.Linq;
using System.Reflection;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Drawings of all entities, with values that no program would choose.</summary>
public class EntityFuzzTests
{
    private const int Drawings = 30;
    private const int EntitiesInADrawing = 40;
    private const int DeepestObject = 3;

    private static readonly double[] Reals = [0, 1, -1, 10, 50, 99.5, 0.001, -200, 1e-300, 1e9, -1e300, double.NaN,
        double.PositiveInfinity];
    private static readonly int[] Numbers = [0, 1, 2, 3, 4, 5, 7, -1, -2, 100, 255, 32_767, int.MaxValue, int.MinValue];
    private static readonly string[] Words = ["", "0", "block", "*Model_Space", "words {\\fArial|b1;in} a\\Pline",
        "%%c%%u\\U+2205", "\0\t", new('x', 300)];
    private static readonly Type[] Types = [.. typeof(CadEntityBase).Assembly.GetTypes().Where(static type =>
        type is { IsAbstract: false, IsPublic: true } && type.IsSubclassOf(typeof(CadEntityBase))
            && type.GetConstructor([]) != null)];

    private static readonly ImageOptionsBase[] Outputs =
        [new PngOptions(), new SvgOptions(), new PdfOptions(), new EmfOptions(), new CgmOptions(), new DxfOptions(),
            new GlbOptions(), new StlOptions()];

    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    [InlineData(3)]
    [InlineData(4)]
    public void Whatever_the_entities_hold_a_drawing_is_written_or_refused_by_name(int seed)
    {
        var random = new Random(seed);
        int written = 0;
        for (int i = 0; i < Drawings; i++)
        {
            CadEntityBase[] entities = [.. Enumerable.Range(0, EntitiesInADrawing).Select(_ => Any(random))];
            using CadImage drawing = TestPage.Drawing(entities);
            TestPage.AddBlock(drawing, "block", Any(random));
            ImageOptionsBase options = Outputs[i % Outputs.Length];
            if (options is not (DxfOptions or GlbOptions or StlOptions))
            {
                options.VectorRasterizationOptions = new CadRasterizationOptions { PageWidth = 40, PageHeight = 40 };
                options.Timeout = 20_000;
            }

            try
            {
                drawing.GetStrings();
                _ = (drawing.MinPoint, drawing.MaxPoint, drawing.Width);
                drawing.Save(Stream.Null, options);
                written++;
            }
            catch (FrameworkException)
            {
                // A reason with a name.
            }
            catch (Exception e)
            {
                Assert.Fail(
                    $"{options.GetType().Name}, drawing {i} of seed {seed}, "
                        + $"{string.Join(", ", entities.Select(static one => one.GetType().Name).Distinct())}: {e}");
            }
        }

        Assert.InRange(written, Drawings / 3, Drawings);
    }

    private static CadEntityBase Any(Random random) =>
        (CadEntityBase)Filled(Types[random.Next(Types.Length)], random, 0);

    private static object Filled(Type type, Random random, int depth)
    {
        object made = Activator.CreateInstance(type)!;
        foreach (PropertyInfo property in type.GetProperties().Where(static p => p.GetIndexParameters().Length == 0))
        {
            // Some members stay as they are: with all of them wild, little would be drawn.
            if (property.SetMethod is { IsPublic: true } && random.Next(3) > 0
                && Value(property.PropertyType, random, depth) is object value)
            {
                Set(made, property, value);
            }
            else if (property.GetValue(made) is IList { IsFixedSize: false } list
                && property.PropertyType.IsGenericType)
            {
                Add(list, property.PropertyType.GetGenericArguments()[0], random, depth);
            }
        }

        return made;
    }

    /// <summary>Members may refuse what they could not keep.</summary>
    private static void Set(object made, PropertyInfo property, object value)
    {
        try
        {
            property.SetValue(made, value);
        }
        catch (TargetInvocationException e) when (e.InnerException is ArgumentException or FormatException
            or FrameworkException)
        {
            // It keeps what it has.
        }
    }

    private static void Add(IList list, Type item, Random random, int depth)
    {
        for (int i = random.Next(6); i > 0 && depth < DeepestObject; i--)
        {
            if (Value(item, random, depth) is object value)
            {
                list.Add(value);
            }
        }
    }

    private static object? Value(Type type, Random random, int depth)
    {
        Type plain = Nullable.GetUnderlyingType(type) ?? type;
        return plain switch
        {
            _ when plain == typeof(double) => random.Next(4) > 0 ? random.NextDouble() * 100
                : Reals[random.Next(Reals.Length)],
            _ when plain == typeof(float) => (float)random.NextDouble() * 100,
            _ when plain == typeof(int) => Numbers[random.Next(Numbers.Length)],
            _ when plain == typeof(short) => (short)Numbers[random.Next(Numbers.Length)],
            _ when plain == typeof(byte) => (byte)random.Next(256),
            _ when plain == typeof(long) => (long)Numbers[random.Next(Numbers.Length)],
            _ when plain == typeof(bool) => random.Next(2) == 0,
            _ when plain == typeof(string) => Words[random.Next(Words.Length)],
            { IsEnum: true } => Enum.ToObject(plain, random.Next(-1, 9)),
            { IsAbstract: true } or { IsInterface: true } or { IsArray: true } or { IsGenericType: true } => null,
            _ when depth < DeepestObject && plain.IsClass && plain.GetConstructor([]) != null =>
                Filled(plain, random, depth + 1),
            _ => null,
        };
    }
}
