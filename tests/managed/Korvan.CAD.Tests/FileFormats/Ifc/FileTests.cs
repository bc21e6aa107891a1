using System;
using System.IO;
using System.IO.Compression;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc;
using Korvan.CAD.FileFormats.StepText;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Input;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Ifc;

/// <summary>Files around models: headers, ZIP files, names of schemas, and lines.</summary>
public class FileTests
{
    private const string Direction = "#1=IFCDIRECTION((1.,0.));\n";

    [Theory]
    [InlineData("IFC2X3", FileFormat.IFC2X3, IfcVersion.IFC2X3)]
    [InlineData("IFC4", FileFormat.IFC4, IfcVersion.IFC4)]
    [InlineData("ifc4_add2_tc1", FileFormat.IFC4, IfcVersion.IFC4)]
    [InlineData("IFC4X3_ADD2", FileFormat.IFC4, IfcVersion.IFC4X3)]
    public void Schemas_are_detected_by_their_names(string schema, FileFormat format, IfcVersion version)
    {
        string text = IfcText.File(Direction, schema);
        Assert.Equal(format, Image.GetFileFormat(new MemoryStream(Encoding.ASCII.GetBytes(text))));
        Assert.Equal(version, IfcText.LoadFile(text).Version);
    }

    [Fact]
    public void Headers_may_be_long_and_follow_a_byte_order_mark()
    {
        string text = IfcText.File(Direction)
            .Replace("(('')", $"(('{new string('x', 10_000)}')", StringComparison.Ordinal);
        byte[] marked = [0xEF, 0xBB, 0xBF, .. Encoding.ASCII.GetBytes(text)];
        var image = (IfcImage)Image.Load(new MemoryStream(marked));
        Assert.Equal(10_000, image.Header.FileDescription.Description[0].Length);
        using MemoryStream saved = new();
        image.Save(saved);
        Assert.Equal(marked, saved.ToArray());
    }

    [Theory]
    [InlineData("ENDSEC;\nDATA", "", "line 6: the header section has no ENDSEC")]
    [InlineData("FILE_NAME(", "FILE_NAME", "line 4: a '(' is missing")]
    [InlineData("HEADER;", "", "line 3: 'HEADER;' is missing")]
    public void Damaged_headers_are_named(string old, string replacement, string message)
    {
        string text = IfcText.File(Direction).Replace(old, replacement, StringComparison.Ordinal);
        ImageLoadException failure = Assert.Throws<ImageLoadException>(() => IfcText.LoadFile(text));
        Assert.Contains(message, failure.Message, StringComparison.Ordinal);
    }

    [Fact]
    public void Packed_files_hold_one_model_of_an_honest_size()
    {
        byte[] model = Encoding.ASCII.GetBytes(IfcText.File(Direction, "IFC2X3"));
        byte[] packed = Pack(("a/model.IFC", model), ("readme.txt", [1, 2, 3]));
        Assert.Equal(FileFormat.IFC2X3, Image.GetFileFormat(new MemoryStream(packed)));
        Assert.Single(((IfcImage)Image.Load(new MemoryStream(packed))).Entities);

        Assert.Contains(
            "holds 2 building models", Refusal(Pack(("a.ifc", model), ("b.ifc", model))), StringComparison.Ordinal);
        Assert.Contains("ZIP", Refusal(packed[..(packed.Length / 2)]), StringComparison.Ordinal);
        // The size that the directory states, raised to more than these bytes can hold.
        int directory = packed.AsSpan().LastIndexOf("PK\u0001\u0002"u8);
        int first = packed.AsSpan(0, directory).LastIndexOf("PK\u0001\u0002"u8);
        BitConverter.TryWriteBytes(packed.AsSpan(first + 24), 1_500_000_000);
        Assert.Contains("1500000000 bytes", Refusal(packed), StringComparison.Ordinal);
    }

    [Fact]
    public void Options_that_a_model_cannot_honour_are_refused()
    {
        IfcImage image = IfcText.Load(Direction);
        Exception? failure = Record.Exception(
            () => image.Save(new MemoryStream(), new IfcOptions { Layers = ["walls"] }));
        Assert.Contains("IfcOptions.layers", failure?.Message, StringComparison.Ordinal);
        Assert.Throws<IfcImageException>(() => image.Bounds);
    }

    [Fact]
    public void Lines_are_counted_over_blocks_and_whatever_ends_them()
    {
        Random random = new(5);
        foreach (string end in new[] { "\n", "\r\n", "\r" })
        {
            string text = string.Concat(Enumerable.Range(0, 4000).Select(i => new string('x', random.Next(80)) + end));
            StepLines lines = new(Encoding.ASCII.GetBytes(text));
            for (int offset = 0; offset < text.Length; offset += 997)
            {
                int expected = 1 + text[..offset].Split(end[^1]).Length - 1;
                Assert.Equal(expected, lines.LineOf(offset));
            }
        }
    }

    private static byte[] Pack(params (string Name, byte[] Content)[] entries)
    {
        using MemoryStream stream = new();
        using (ZipArchive archive = new(stream, ZipArchiveMode.Create, true))
        {
            foreach ((string name, byte[] content) in entries)
            {
                using Stream entry = archive.CreateEntry(name).Open();
                entry.Write(content);
            }
        }

        return stream.ToArray();
    }

    private static string Refusal(byte[] data)
    {
        ImageLoadException refusal = Assert.Throws<ImageLoadException>(() => Image.Load(new MemoryStream(data)));
        Assert.Equal(LoadDefectCode.InvalidArchive, refusal.Defect?.Code);
        return refusal.Message;
    }
}
