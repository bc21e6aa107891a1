using System;
using System.IO;
using System.Linq;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Text;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Pages of many entities, which are drawn a part at a time.</summary>
public sealed class PartTests : IDisposable
{
    private readonly TextEngine _engine = new();

    public void Dispose() => _engine.Dispose();

    [Theory]
    [InlineData("emf")]
    [InlineData("wmf")]
    [InlineData("html")]
    [InlineData("cgm")]
    public void The_same_content_makes_the_same_bytes_whole_and_in_parts(string format)
    {
        Page page = PdfSample.PageOf(PdfSample.List(_engine));
        Page inParts = page with
        {
            List = PdfSample.List(_engine, maxStored: 3),
            Replay = drain => drain(PdfSample.List(_engine, maxStored: 2, drain)),
        };
        byte[] whole = Write(format, page);
        Assert.True(whole.Length > 1000);
        Assert.Equal(whole, Write(format, inParts));
    }

    [Theory]
    [InlineData(false)]
    [InlineData(true)]
    public void Markup_in_parts_shows_the_same_and_opens_each_run_of_a_layer_once(bool asShapes)
    {
        var options = new SvgOptions { TextAsShapes = asShapes };
        Page page = PdfSample.PageOf(PdfSample.List(_engine));
        Page inParts = page with
        {
            List = PdfSample.List(_engine, maxStored: 3),
            Replay = drain => drain(PdfSample.List(_engine, maxStored: 2, drain)),
        };
        string[] files = [.. new[] { page, inParts }.Select(one =>
        {
            using var output = new MemoryStream();
            SvgDocument.Write(output, _engine, one, options);
            return PdfSample.ToFile(output.ToArray());
        })];
        PixelMap.AssertSame(PixelMap.OfSvg(files[0]), PixelMap.OfSvg(files[1]));
        Assert.Equal(Runs(files[0]), Runs(files[1]));
    }

    [Fact]
    public void Contents_of_any_length_are_kept_in_blocks()
    {
        var content = new ContentBlocks();
        byte[] expected = new byte[(2 << 20) + 77];
        new Random(1).NextBytes(expected);
        for (int at = 0, step = 1; at < expected.Length; at += step, step = step * 3 % 300_007)
        {
            content.Write(expected.AsSpan(at, Math.Min(step, expected.Length - at)));
        }

        Assert.Equal(expected.Length, content.Length);
        Assert.All([0, 108, 1 << 20, expected.Length], start =>
        {
            using var output = new MemoryStream();
            content.WriteTo(output, start);
            Assert.Equal(expected[start..], output.ToArray());
        });
    }

    private static string[] Runs(string file) =>
        [.. File.ReadLines(file).Where(static line => line.StartsWith("<g id=\"layer", StringComparison.Ordinal))];

    private byte[] Write(string format, Page page)
    {
        using var output = new MemoryStream();
        switch (format)
        {
            case "emf":
                EmfDocument.Write(output, _engine, page, new EmfOptions());
                break;
            case "wmf":
                WmfDocument.Write(output, _engine, page, new WmfOptions());
                break;
            case "html":
                HtmlCanvasDocument.Write(output, _engine, page, new Html5Options());
                break;
            default:
                CgmDocument.Write(output, _engine, page, new CgmOptions());
                break;
        }

        return output.ToArray();
    }
}
