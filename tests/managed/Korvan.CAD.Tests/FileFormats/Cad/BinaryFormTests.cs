using System;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>Binary interchange files, made here from text ones, read like the text they were made from.</summary>
public class BinaryFormTests
{
    private static readonly object[] Entities =
    [
        0, "LINE", 5, "2A", 8, "Layer", 62, -3, 48, 0.1, 10, 1.0 / 3, 20, -1e-300, 30, 1e300, 11, 0, 21, 0, 31, 0, 370,
            -1, 420, 0x7f102030, 440, 0x02000080,
        0, "MTEXT", 5, "2B", 8, "0", 10, 0, 20, 0, 40, 2.5, 71, 1, 1, "one \\P two",
        0, "WIDGET", 5, "2C", 8, "0", 90, -2000000000, 160, 5000000000, 280, 1, 290, 1, 310, "00FF7F", 460, 0.5, 1001,
            "ACME", 1070, -5, 1071, 100000, 1004, "CAFE", 1010, 1.5, 1020, 2, 1030, 3,
    ];

    [Theory]
    [InlineData("AC1009", false)]
    [InlineData("AC1015", true)]
    [InlineData("AC1032", true)]
    public void Both_forms_read_the_same(string release, bool words)
    {
        string text = DxfText.Header(release) + DxfText.Entities(Entities) + DxfText.Tags(0, "EOF");
        Assert.Equal(DxfText.Save(DxfText.Load(text)),
            SaveAsText(DxfText.Load(Binary(Encoding.Latin1.GetBytes(text), words))));
    }

    [Theory]
    [InlineData("AC1009", false)]
    [InlineData("AC1015", true)]
    [InlineData("AC1032", true)]
    public void What_was_read_as_binary_is_saved_as_binary(string release, bool words)
    {
        string text = DxfText.Header(release) + DxfText.Entities(Entities) + DxfText.Tags(0, "EOF");
        DxfImage image = DxfText.Load(Binary(Encoding.Latin1.GetBytes(text), words));
        using MemoryStream saved = new();
        image.Save(saved);
        Assert.Equal(Binary(Encoding.Latin1.GetBytes(SaveAsText(image)), words), saved.ToArray());
    }

    [Fact]
    public void A_value_that_has_no_binary_form_is_named()
    {
        DxfImage image = DxfText.Load(DxfText.Drawing(0, "WIDGET", 5, "2C", 8, "0", 100, "AcDbWidget", 90, "many"));
        image.Drawing.IsBinary = true;
        string message = Assert.Throws<ImageSaveException>(() => image.Save(new MemoryStream())).Message;
        Assert.Contains("WIDGET 2C", message);
        Assert.Contains("'many' for group code 90", message);
    }

    [DrawingFact]
    public void Real_drawings_read_the_same_in_both_forms()
    {
        int compared = 0;
        foreach (string file in SharedDrawings.AllDxf())
        {
            byte[] text = File.ReadAllBytes(file);
            if (text.AsSpan().StartsWith("AutoCAD Binary"u8) || text.Length > 2_000_000)
            {
                continue;
            }

            CadImage first;
            try
            {
                first = (CadImage)Image.Load(file);
            }
            catch (ImageLoadException)
            {
                continue;
            }

            compared++;
            string expected = Plain(DxfText.Save(first));
            string actual = Plain(
                SaveAsText(DxfText.Load(Binary(text, first.Version.ToString().CompareTo("AC1009") > 0))));
            Assert.True(expected == actual, $"{Path.GetFileName(file)}: {Difference(expected, actual)}");
        }

        Assert.True(compared > 20, $"only {compared} drawings were compared");
    }

    [Theory]
    [InlineData(0)]
    [InlineData(1)]
    [InlineData(25)]
    public void A_binary_file_that_ends_early_is_damaged(int missing)
    {
        byte[] whole = Binary(Encoding.Latin1.GetBytes(DxfText.Header("AC1015") + DxfText.Entities(Entities)), true);
        byte[] cut = whole[..(whole.Length - missing)];
        if (missing == 0)
        {
            Assert.Equal(3, DxfText.Load(cut).Entities.Count); // the end mark alone is missing
            return;
        }

        ImageLoadException failure = Assert.Throws<ImageLoadException>(() => DxfText.Load(cut));
        Assert.Contains("byte", failure.Message);
    }

    private static string SaveAsText(CadImage image)
    {
        image.Drawing.IsBinary = false;
        string text = DxfText.Save(image);
        image.Drawing.IsBinary = true;
        return text;
    }

    /// <summary>Writes the tags of a text file as binary ones.</summary>
    internal static byte[] Binary(byte[] text, bool words)
    {
        using MemoryStream output = new();
        using BinaryWriter writer = new(output);
        writer.Write("AutoCAD Binary DXF\r\n\u001a\0"u8);
        string[] lines = Encoding.Latin1.GetString(text).TrimStart('\u00EF', '\u00BB', '\u00BF').Replace("\r\n",
            "\n").Replace('\r', '\n').Split('\n');
        for (int i = 0; i + 1 < lines.Length; i += 2)
        {
            int code = int.Parse(lines[i], CultureInfo.InvariantCulture);
            WriteCode(writer, code, words);
            WriteValue(writer, code, lines[i + 1]);
        }

        return output.ToArray();
    }

    private static void WriteCode(BinaryWriter writer, int code, bool words)
    {
        if (words)
        {
            writer.Write((short)code);
        }
        else if (code < 255)
        {
            writer.Write((byte)code);
        }
        else
        {
            writer.Write((byte)255);
            writer.Write((short)code);
        }
    }

    private static void WriteValue(BinaryWriter writer, int code, string value)
    {
        switch (code)
        {
            case (>= 10 and < 60) or (>= 110 and < 150) or (>= 210 and < 240) or (>= 460 and < 470)
                or (>= 1010 and < 1060):
                writer.Write(double.Parse(value, CultureInfo.InvariantCulture));
                break;
            case (>= 60 and < 80) or (>= 170 and < 180) or (>= 270 and < 290) or (>= 370 and < 390)
                or (>= 400 and < 410) or (>= 1060 and < 1071):
                writer.Write(unchecked((short)Whole(value)));
                break;
            case (>= 90 and < 100) or (>= 420 and < 430) or (>= 440 and < 460) or 1071:
                writer.Write(unchecked((int)Whole(value)));
                break;
            case >= 160 and < 170:
                writer.Write(Whole(value));
                break;
            case >= 290 and < 300:
                writer.Write((byte)Whole(value));
                break;
            case (>= 310 and < 320) or 1004:
                byte[] bytes = Convert.FromHexString(value.Trim());
                writer.Write((byte)bytes.Length);
                writer.Write(bytes);
                break;
            default:
                writer.Write(Encoding.Latin1.GetBytes(value));
                writer.Write((byte)0);
                break;
        }
    }

    // Text files may write one number in many ways, which stay as they are where nobody interprets them.
    private static string Plain(string saved) => string.Join('\n', saved.Split("\r\n").Select(line =>
        double.TryParse(line, CultureInfo.InvariantCulture, out double number)
            ? number.ToString("R", CultureInfo.InvariantCulture) : line));

    private static long Whole(string value) => (long)double.Parse(value, CultureInfo.InvariantCulture);

    private static string Difference(string expected, string actual)
    {
        (string[] left, string[] right) = (expected.Split('\n'), actual.Split('\n'));
        int at = 0;
        while (at < Math.Min(left.Length, right.Length) && left[at] == right[at])
        {
            at++;
        }

        return $"line {at + 1}: '{(at < left.Length ? left[at] : "")}' as text, "
            + $"'{(at < right.Length ? right[at] : "")}' as binary";
    }
}
