using System;
using System.Collections;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Reflection;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Tests.FileFormats.Cgm;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Pictures of all commands in any order, with values that no writer would choose.</summary>
public class MetafileFuzzTests
{
    private const int Pictures = 40;
    private const int CommandsInAPicture = 60;

    private static readonly double[] Reals = [0, 1, -1, 10, 50, 99.5, 0.001, -200, 1e-300, 1e9, -1e300, double.NaN,
        double.PositiveInfinity];
    private static readonly int[] Numbers = [0, 1, 2, 3, 4, 5, 7, -1, -2, 100, 255, 70_000, int.MaxValue, int.MinValue];
    private static readonly string[] Words = ["", "layer", "words in a line", "\0\t\u001b%G", "日本 ä", new('x', 300)];
    private static readonly Type[] Types = [.. RandomCommands.Kinds];

    [Theory]
    [InlineData(1)]
    [InlineData(2)]
    [InlineData(3)]
    [InlineData(4)]
    public void Whatever_the_commands_hold_a_picture_is_drawn_or_refused_by_name(int seed)
    {
        var random = new Random(seed);
        int drawn = 0;
        for (int i = 0; i < Pictures; i++)
        {
            Command[] body = [.. Enumerable.Range(0, CommandsInAPicture).Select(_ => Any(random))];
            CgmImage image = MetafilePage.Image([], [.. body.Where(_ => random.Next(8) == 0)], body);
            ImageOptionsBase options = i % 2 == 0 ? new PngOptions() : new SvgOptions();
            options.VectorRasterizationOptions = new CadRasterizationOptions
            {
                PageWidth = 40,
                PageHeight = 40,
                Layouts = [image.PictureNames[0]]
            };
            options.Timeout = 20_000;
            try
            {
                image.GetTexts();
                _ = (image.Width, image.Height);
                image.Save(Stream.Null, options);
                drawn++;
            }
            catch (FrameworkException)
            {
                // A reason with a name.
            }
            catch (Exception e)
            {
                Assert.Fail(
                    $"picture {i} of seed {seed}, "
                        + $"{string.Join(", ", body.Select(static command => command.Keyword))}: {e}");
            }
        }

        Assert.InRange(drawn, Pictures / 2, Pictures);
    }

    [Theory]
    [InlineData(5)]
    [InlineData(6)]
    public void What_is_written_can_be_read_and_what_cannot_be_read_is_not_written(int seed)
    {
        var random = new Random(seed);
        int written = 0;
        for (int i = 0; i < Pictures * 20; i++)
        {
            CgmImage image = MetafilePage.Image(Any(random), Any(random), Any(random));
            foreach (CgmFileFormat encoding in Enum.GetValues<CgmFileFormat>())
            {
                using var file = new MemoryStream();
                try
                {
                    image.File.Save(file, encoding);
                }
                catch (ImageSaveException)
                {
                    Assert.Equal(0, file.Length);
                    continue;
                }

                file.Position = 0;
                int expected = image.File.Commands.Count(command => encoding == CgmFileFormat.Binary
                    || command is not NoOp);
                Assert.Equal(expected, CgmFile.Load(file).Commands.Count);
                written++;
            }
        }

        Assert.InRange(written, Pictures * 5, Pictures * 40);
    }

    private static Command Any(Random random)
    {
        var command = (Command)Activator.CreateInstance(Types[random.Next(Types.Length)])!;
        foreach (PropertyInfo property in command.GetType().GetProperties().Where(static p => p.CanWrite))
        {
            // Some members stay as they are: with all of them wild, little would be drawn.
            if (random.Next(3) > 0)
            {
                property.SetValue(command, Value(property.PropertyType, random));
            }
        }

        return command;
    }

    private static object? Value(Type type, Random random) => type switch
    {
        _ when type == typeof(double) => random.Next(4) > 0 ? random.NextDouble() * 100
            : Reals[random.Next(Reals.Length)],
        _ when type == typeof(int) => Numbers[random.Next(Numbers.Length)],
        _ when type == typeof(bool) => random.Next(2) == 0,
        _ when type == typeof(string) => Words[random.Next(Words.Length)],
        _ when type == typeof(CgmPoint) =>
            new CgmPoint((double)Value(typeof(double), random)!, (double)Value(typeof(double), random)!),
        _ when type == typeof(CgmColor) => random.Next(2) == 0 ? new CgmColor(random.Next(300))
            : new CgmColor(Color.FromArgb(random.Next())),
        _ when type == typeof(byte[]) => Bytes(random),
        _ when type == typeof(int[]) => Enumerable.Range(0, random.Next(20)).Select(_ => random.Next()).ToArray(),
        { IsEnum: true } => Enum.ToObject(type, random.Next(-2, 9)),
        { IsGenericType: true } when type.GetGenericTypeDefinition() == typeof(List<>) => List(type, random),
        _ => Activator.CreateInstance(type, true),
    };

    private static object List(Type type, Random random)
    {
        var list = (IList)Activator.CreateInstance(type)!;
        Type item = type.GetGenericArguments()[0];
        bool isMakeable = item.IsValueType || item == typeof(string) || item == typeof(CgmPoint)
            || item == typeof(CgmColor);
        for (int i = random.Next(9); i > 0 && isMakeable; i--)
        {
            list.Add(Value(item, random));
        }

        return list;
    }

    private static byte[] Bytes(Random random)
    {
        byte[] bytes = new byte[random.Next(100)];
        random.NextBytes(bytes);
        return bytes;
    }
}
