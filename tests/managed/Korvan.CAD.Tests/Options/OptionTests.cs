using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using System.Text.RegularExpressions;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Formats;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Tests.Raster;
using Xunit;

namespace Korvan.CAD.Tests.Options;

/// <summary>Every option changes the output, or raises an error that names it. None is ignored silently.</summary>
public partial class OptionTests
{
    private static readonly Lazy<Dictionary<string, HashSet<Type>>> Taken =
        new(static () => OptionSamples.All.ToDictionary(static row => row.Key, static row => TakenBy(row.Value)));

    private enum Outcome
    {
        Same,
        Differs,
        Refused,
        RefusedWithoutName,

        /// <summary>The option has an effect on its own, or never.</summary>
        NotTried,
    }

    public static IEnumerable<object[]> Outputs =>
        from source in OptionSamples.All.Keys
        from type in OptionTypes()
        where Takes(source, type)
        select new object[] { source, type };

    [Theory]
    [MemberData(nameof(Outputs))]
    public void Options_are_followed_or_refused_by_name(string source, Type type)
    {
        using Image image = OptionSamples.All[source]();
        var saver = new Saver(image);
        List<string> wrong = [];
        foreach (OptionMember member in OptionMember.Of(type))
        {
            object? now = member.Property.GetValue(member.Holder(New(type)));
            foreach (object? value in OptionValues.Others(member.Property, now))
            {
                string? fault = Judge(saver, source, member, value);
                if (fault != null)
                {
                    wrong.Add($"{source} → {member} = {Describe(value)}: {fault}");
                }
            }
        }

        Assert.True(wrong.Count == 0, string.Join('\n', wrong));
    }

    [Fact]
    public void Options_of_formats_that_nothing_is_written_in_are_refused_by_name()
    {
        foreach (Type type in OptionTypes()
            .Where(static type => !OptionSamples.All.Keys.Any(source => Takes(source, type))))
        {
            foreach (Func<Image> make in OptionSamples.All.Values)
            {
                using Image image = make();
                var refused = Assert.Throws<ImageSaveException>(() => image.Save(Stream.Null, New(type)));
                Assert.Contains(type.Name, refused.Message, StringComparison.Ordinal);
            }
        }
    }

    [Fact]
    public void Pixels_are_rotated_like_those_of_an_image()
    {
        using var image = Samples.Colors(12, 7);
        var options = new PngOptions
        {
            Rotation = RotateFlipType.Rotate90FlipX,
            ResolutionSettings = new ResolutionSetting(50, 100),
        };
        using RasterCachedImage rotated = Samples.Load(Samples.Save(image, options, ".png"));
        image.RotateFlip(RotateFlipType.Rotate90FlipX);
        Assert.Equal(image.LoadArgb32Pixels(image.Bounds), rotated.LoadArgb32Pixels(rotated.Bounds));
        Assert.Equal((7, 12, 100.0), (rotated.Width, rotated.Height, Math.Round(rotated.HorizontalResolution)));
    }

    [Fact]
    public void Each_export_reports_its_result()
    {
        foreach (Func<Image> make in OptionSamples.All.Values)
        {
            using Image image = make();
            ImageOptionsBase options = New(FormatRegistry.OptionTypesFor(image).First());
            image.Save(Stream.Null, options);
            Assert.True(options.RenderResult!.IsRenderComplete, options.RenderResult.Message);
        }
    }

    private static string? Judge(Saver saver, string source, OptionMember member, object? value)
    {
        bool expected = OptionExpectations.IsSame(source, member, value);
        (Outcome alone, string message) = saver.Compare(member, value, null);
        (Outcome together, string why) = OptionExpectations.CompanyOf(source, member) is { } company
            ? saver.Compare(member, value, company)
            : (Outcome.NotTried, "");
        return (alone, together) switch
        {
            (Outcome.RefusedWithoutName, not Outcome.Differs) when !OptionExpectations.IsRefused(member, value) =>
                $"is refused without its name: {message}",
            (Outcome.Differs, _) or (_, Outcome.Differs) when expected =>
                "changes the output, although it is listed as one that does not",
            (Outcome.Same, Outcome.NotTried or Outcome.Same) when !expected => "is passed over",
            (_, Outcome.Same) when !expected => "is passed over where it should count",
            (_, Outcome.Refused or Outcome.RefusedWithoutName) when !OptionExpectations.IsRefused(member, value) =>
                $"is refused where it should count: {why}",
            _ => null,
        };
    }

    private static ImageOptionsBase New(Type type) => (ImageOptionsBase)Activator.CreateInstance(type)!;

    private static bool Takes(string source, Type type) => Taken.Value[source].Contains(type);

    private static HashSet<Type> TakenBy(Func<Image> make)
    {
        using Image image = make();
        return [.. OptionTypes().Where(type => image.CanSave(New(type)))];
    }

    private static IEnumerable<Type> OptionTypes() =>
        typeof(ImageOptionsBase).Assembly.GetExportedTypes()
            .Where(static type => type.IsSubclassOf(typeof(ImageOptionsBase)) && !type.IsAbstract);

    private static string Describe(object? value) =>
        value is Array array ? string.Join(' ', array.Cast<object>()) : value?.ToString() ?? "nothing";

    /// <summary>Saves an image again and again, with and without an option.</summary>
    private sealed partial class Saver(Image image)
    {
        private readonly Dictionary<string, string> _plain = [];

        internal (Outcome Outcome, string Message) Compare(OptionMember member, object? value, OptionCompany? company)
        {
            try
            {
                string changed = Save(member, company, options =>
                {
                    member.Set(options, value);
                    company?.Along(options, value);
                });
                return (changed == Plain(member, company) ? Outcome.Same : Outcome.Differs, "");
            }
            catch (Exception e) when (e is FrameworkException or ArgumentException)
            {
                return (member.IsNamedBy(e.Message) ? Outcome.Refused : Outcome.RefusedWithoutName, e.Message);
            }
        }

        private string Plain(OptionMember member, OptionCompany? company)
        {
            string key = member.HolderPath + (company == null ? "" : " of " + member.Path);
            if (!_plain.TryGetValue(key, out string? plain))
            {
                _plain[key] = plain = Save(member, company, static _ => { });
                Assert.True(
                    plain == Save(member, company, static _ => { }),
                    $"{member.Root.Name} does not write the same twice.");
            }

            return plain;
        }

        private string Save(OptionMember member, OptionCompany? company, Action<ImageOptionsBase> change)
        {
            ImageOptionsBase options = New(member.Root);
            member.Holder(options);
            company?.Before(options);
            if (options.VectorRasterizationOptions is { PageWidth: 0 } vector
                && FormatRegistry.FindWriter(image, options.GetType())!.KindOf(image) != OutputKind.Faces)
            {
                vector.PageSize = new SizeF(120, 90);
            }

            change(options);
            using var output = new MemoryStream();
            image.Save(output, options);
            string content = Encoding.Latin1.GetString(output.ToArray());
            return options is DicomOptions or PdfOptions ? Passing().Replace(content, "") : content;
        }

        /// <summary>What differs between files: DICOM identifiers, and the length of the group with the
        /// first one; the creation time of a PDF, and that in its signature.</summary>
        [GeneratedRegex(
            @"UI..2\.25\.\d+|UL\x04\x00....|/CreationDate \(D:[^)]*\)"
            + "|04(20[0-9A-Fa-f]{64}|30[0-9A-Fa-f]{96}|40[0-9A-Fa-f]{128}|820100[0-9A-Fa-f]{512})",
            RegexOptions.Singleline)]
        private static partial Regex Passing();
    }
}
