using System;
using System.Diagnostics;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.Tests.Rendering;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>Metafiles that another program writes, of each version in both encodings.</summary>
public class ForeignFileTests
{
    [Theory]
    [InlineData("1")]
    [InlineData("2")]
    [InlineData("3")]
    [InlineData("4")]
    public void Both_encodings_of_a_plot_hold_the_same_commands(string version)
    {
        CgmFile binary = CgmFile.Load(new MemoryStream(Plot(version, "binary", ["-q", "0.3"])));
        CgmFile text = CgmFile.Load(new MemoryStream(Plot(version, "clear_text", ["-q", "0.3"])));
        Assert.Equal((CgmFileFormat.Binary, CgmFileFormat.ClearText), (binary.Encoding, text.Encoding));
        Assert.Empty(binary.Messages.Concat(text.Messages));
        Assert.True(binary.Commands.OfType<Polyline>().Count() > 20);

        // The program writes its real numbers with other digits in each.
        string[] first = Tokens(binary), second = Tokens(text);
        Assert.Equal(first.Length, second.Length);
        Assert.All(
            first.Zip(second),
            pair => Assert.True(AreNear(pair.First, pair.Second), $"{pair.First} is no {pair.Second}"));
    }

    [Theory]
    [InlineData("1")]
    [InlineData("4")]
    public void A_binary_plot_is_written_byte_for_byte_as_it_was_read(string version)
    {
        byte[] plot = Plot(version, "binary", []); // no grey: its 16 bits would be rounded to 8
        var written = new MemoryStream();
        CgmFile.Load(new MemoryStream(plot)).Save(written, CgmFileFormat.Binary);
        Assert.Equal(plot, written.ToArray());
    }

    private static string[] Tokens(CgmFile file)
    {
        file.Commands.RemoveAll(one => one is RealPrecision);
        var text = new MemoryStream();
        file.Save(text, CgmFileFormat.ClearText);
        return Encoding.Latin1.GetString(text.ToArray()).Split(
            [' ', '\n', ';', ',', '(', ')'], StringSplitOptions.RemoveEmptyEntries);
    }

    private static bool AreNear(string first, string second)
    {
        return double.TryParse(first, CultureInfo.InvariantCulture, out double one) && double.TryParse(
            second, CultureInfo.InvariantCulture, out double other)
            ? Math.Abs(one - other) <= 1e-4 * Math.Max(1, Math.Abs(one))
            : first == second;
    }

    private static byte[] Plot(string version, string encoding, string[] more)
    {
        Tools.Require("graph");
        var start = new ProcessStartInfo("graph", ["-T", "cgm", "-C", "-S", "4", "-L", "sine of x", .. more])
        {
            RedirectStandardInput = true,
            RedirectStandardOutput = true,
        };
        start.Environment["CGM_MAX_VERSION"] = version;
        start.Environment["CGM_ENCODING"] = encoding;
        using Process process = Process.Start(start)!;
        for (int i = 0; i < 40; i++)
        {
            process.StandardInput.WriteLine(FormattableString.Invariant($"{i} {Math.Sin(i / 5.0):0.0000}"));
        }

        process.StandardInput.Close();
        var output = new MemoryStream();
        process.StandardOutput.BaseStream.CopyTo(output);
        process.WaitForExit();
        return output.ToArray();
    }
}
