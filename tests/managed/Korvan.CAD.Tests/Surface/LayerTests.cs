using System;
using System.Collections.Generic;
using System.Linq;
using Xunit;

namespace Korvan.CAD.Tests.Surface;

/// <summary>References between the compiled types lead downwards, and never in a circle between modules.</summary>
public sealed class LayerTests
{
    /// <summary>References upwards that are allowed: public signatures, with the reason.</summary>
    private static readonly HashSet<(string From, string To)> Exempt =
    [
        // A public constructor takes the image that the thumbnail is made of.
        ("FileFormats.Psd.Resources.ThumbnailResource", "Image"),
        ("FileFormats.Psd.Resources.ThumbnailResource", "RasterImage"),

        // A public method reads the blocks of a file, of which the options take some.
        ("FileFormats.Psd.ResourceBlock", "Raster.Codecs.PsdResources"),
    ];

    private static readonly LayerMap Map = LayerMap.Read();
    private static readonly List<(string From, string To)> References = ReadReferences();

    [Fact]
    public void Each_type_belongs_to_a_layer()
    {
        string[] types = [.. TypeNames()];
        Assert.True(types.Length > 1000, $"only {types.Length} types were read");
        Assert.DoesNotContain(types, static type => Map.Find(type).Layer < 0);
        Assert.Empty(Map.Unused(types));
    }

    [Fact]
    public void References_lead_downwards()
    {
        string[] upwards =
        [
            .. References.Where(static one => Map.Find(one.From).Layer < Map.Find(one.To).Layer)
                .Where(static one => !Exempt.Contains((Short(one.From), Short(one.To))))
                .Select(static one => $"{Describe(one.From)} refers to {Describe(one.To)}"),
        ];
        Assert.True(upwards.Length == 0, $"{upwards.Length} references lead upwards:\n{string.Join('\n', upwards)}");
        Assert.All(
            Exempt, static one => Assert.Contains(References, made => (Short(made.From), Short(made.To)) == one));
    }

    [Fact]
    public void Modules_of_a_layer_form_no_cycle()
    {
        ILookup<string, string> modules = References
            .Select(static one => (From: Map.Find(one.From), To: Map.Find(one.To)))
            .Where(static one => one.From.Layer == one.To.Layer && one.From.Module != one.To.Module)
            .Distinct().ToLookup(static one => one.From.Module, static one => one.To.Module);
        foreach (string module in modules.Select(static group => group.Key))
        {
            List<string>? cycle = FindCycle(modules, module, [module]);
            Assert.True(cycle is null, $"modules refer to each other: {string.Join(" -> ", cycle ?? [])}");
        }
    }

    [Fact]
    public void References_are_found_in_signatures_bodies_and_attributes()
    {
        Assert.Contains(References, static one => one is { From: "Korvan.CAD.Image", To: "Korvan.CAD.LoadOptions" });
        Assert.Contains(References, static one => one is { From: "Korvan.CAD.Image", To: "Korvan.CAD.ImageLoader" });
        Assert.Contains(References, static one =>
            one is { From: "Korvan.CAD.FileFormat", To: "Korvan.CAD.FileFormatMetadataAttribute" });
    }

    private static List<string>? FindCycle(ILookup<string, string> modules, string start, List<string> path)
    {
        foreach (string next in modules[path[^1]])
        {
            if (next == start)
            {
                return [.. path, next];
            }

            if (!path.Contains(next) && FindCycle(modules, start, [.. path, next]) is { } cycle)
            {
                return cycle;
            }
        }

        return null;
    }

    private static List<(string From, string To)> ReadReferences() =>
    [
        .. TypeGraph.Read(typeof(Image).Assembly.Location).References
            .Where(static pair => IsOwn(pair.Key))
            .SelectMany(static pair => pair.Value.Where(IsOwn).Select(to => (pair.Key, to))),
    ];

    private static IEnumerable<string> TypeNames() =>
        TypeGraph.Read(typeof(Image).Assembly.Location).References.Keys.Where(IsOwn);

    private static bool IsOwn(string type) => type.StartsWith("Korvan.CAD.", StringComparison.Ordinal);

    private static string Short(string type) => type["Korvan.CAD.".Length..];

    private static string Describe(string type) => $"{Short(type)} ({Map.Names[Map.Find(type).Layer]})";
}
