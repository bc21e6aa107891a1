using System;
using System.IO;
using System.IO.Compression;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Xunit;
using static Korvan.CAD.Tests.FileFormats.Cgm.CgmBytes;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>Whole files: detection, reading, and that none is written in part.</summary>
public sealed class CgmFileTests : IDisposable
{
    private readonly string _folder = Directory.CreateTempSubdirectory().FullName;

    public void Dispose() => Directory.Delete(_folder, true);

    [Theory]
    [InlineData(CgmFileFormat.Binary, false)]
    [InlineData(CgmFileFormat.Binary, true)]
    [InlineData(CgmFileFormat.ClearText, false)]
    [InlineData(CgmFileFormat.ClearText, true)]
    public void Files_are_saved_told_and_loaded(CgmFileFormat format, bool isPacked)
    {
        string path = Path.Combine(_folder, "plan.cgm");
        var file = new CgmFile();
        file.Commands.AddRange(
            [
                new BeginMetafile("plan"), new MetafileVersion(1), new BeginPicture("one"), new BeginPictureBody(),
                new EndPicture(), new BeginPicture("two"), new BeginPictureBody(), new EndPicture(), new EndMetafile(),
            ]);
        file.Save(path, format);
        if (isPacked)
        {
            File.WriteAllBytes(path, Pack(File.ReadAllBytes(path)));
        }

        Assert.Equal(FileFormat.Cgm, Image.GetFileFormat(path));
        CgmFile read = CgmFile.Load(path);
        Assert.Equal((format, "plan"), (read.Encoding, read.Name));
        Assert.Equal(["one", "two"], read.PictureNames);
        Assert.Empty(read.Messages);
        Assert.Equal(file.Commands.Select(one => one.GetType()), read.Commands.Select(one => one.GetType()));
    }

    [Theory]
    [InlineData("0022 0174 1022 0001", true)]
    [InlineData("0021 0000 1022 0001", true)] // an empty name
    [InlineData("0020 1022 0001", true)] // no name at all
    [InlineData("003F 0023 22", true)] // a long one, as far as can be seen
    [InlineData("0022 0174 4022 0001", false)] // a line before the descriptor
    [InlineData("0022 0974 1022 0001", false)] // a name that is longer than its element
    [InlineData("0000 0100 0100 1010", false)] // an icon
    [InlineData("0001 0000 0012 0100", false)] // a font
    public void Binary_files_are_detected_by_their_first_elements(string header, bool isCgm) =>
        Assert.Equal(isCgm ? FileFormat.Cgm : FileFormat.Undefined, Image.GetFileFormat(new MemoryStream(Hex(header))));

    [Theory]
    [InlineData("BEGMF 'a';", true)]
    [InlineData("\r\n % drawn by hand % b_e$gmf 'a';", true)]
    [InlineData("%!PS-Adobe-3.0\n%%BoundingBox: 0 0 1 1\n", false)]
    [InlineData("BEGIN", false)]
    public void Clear_text_files_are_detected_by_their_first_keyword(string header, bool isCgm) =>
        Assert.Equal(
            isCgm ? FileFormat.Cgm : FileFormat.Undefined,
            Image.GetFileFormat(new MemoryStream(Encoding.Latin1.GetBytes(header))));

    [Theory]
    [InlineData("302022", "character encoding")]
    [InlineData("1B25 20 42 302022", "character encoding")] // behind a sequence that chooses the coding
    [InlineData("89504E470D0A1A0A", "no metafile")]
    [InlineData("", "empty")]
    [InlineData("1F8B0800000000000003FFFFFF", "damaged")] // packed, but not by gzip
    public void Other_files_are_refused_by_name(string data, string cause)
    {
        string path = Path.Combine(_folder, "other.cgm");
        File.WriteAllBytes(path, Hex(data));
        var failure = Assert.Throws<ImageLoadException>(() => CgmFile.Load(path));
        Assert.Contains(path, failure.Message);
        Assert.Contains(cause, failure.Message);
    }

    [Fact]
    public void A_packed_file_that_is_cut_is_refused()
    {
        byte[] packed = Pack(
            Save([.. Enumerable.Range(0, 1000).Select(i => (Command)new LineWidth(i))], CgmFileFormat.Binary));
        Assert.Throws<ImageLoadException>(() => Load(packed[..(packed.Length / 2)]));
    }

    [Fact]
    public void What_cannot_be_saved_leaves_the_old_file_as_it_is()
    {
        string path = Path.Combine(_folder, "plan.cgm");
        File.WriteAllText(path, "old");
        var file = new CgmFile();
        file.Commands.AddRange([new BeginMetafile("t"), new Polyline { Points = [new(1e9, 0)] }, new EndMetafile()]);
        Assert.StartsWith(
            $"'{path}', command 1, LINE (4, 1): ",
            Assert.Throws<ImageSaveException>(() => file.Save(path, CgmFileFormat.Binary)).Message);
        var stream = new MemoryStream();
        Assert.Throws<ImageSaveException>(() => file.Save(stream, CgmFileFormat.Binary));
        file.Commands.RemoveRange(1, 2);
        Assert.Throws<ImageSaveException>(() => file.Save(path, CgmFileFormat.ClearText)); // no end
        Assert.Equal("old", File.ReadAllText(path));
        Assert.Equal([path], Directory.GetFiles(_folder));
        Assert.Equal(0, stream.Length);
        Assert.Throws<ImageLoadException>(() => CgmFile.Load(Path.Combine(_folder, "none.cgm")));
    }

    [Theory]
    [InlineData(CgmFileFormat.Binary, 1)]
    [InlineData(CgmFileFormat.Binary, 2)]
    [InlineData(CgmFileFormat.ClearText, 3)]
    [InlineData(CgmFileFormat.ClearText, 4)]
    public void Changed_files_are_read_or_refused(CgmFileFormat format, int seed)
    {
        // What says how later elements are coded would make the others unfit.
        var commands = new RandomCommands(seed, Coding.Narrow);
        Type[] unfit =
        [
            typeof(BeginMetafile), typeof(BeginPicture), typeof(ColourSelectionMode),
            typeof(MetafileDefaultsReplacement), typeof(ColourModel), typeof(VdcType), typeof(VdcRealPrecision),
            typeof(VdcIntegerPrecision), typeof(RealPrecision), typeof(IntegerPrecision), typeof(IndexPrecision),
            typeof(NamePrecision), typeof(ColourPrecision), typeof(ColourIndexPrecision), typeof(ColourValueExtent),
            typeof(DeviceViewportSpecificationMode),
        ];
        byte[] whole = Save(
            [
                .. RandomCommands.Kinds.Except(unfit).Select(commands.Create),
                new MetafileDefaultsReplacement { Commands = [new LineWidth(1)] },
            ],
            format);
        Random random = new(seed);
        int read = 0;
        for (int round = 0; round < 3000; round++)
        {
            byte[] changed = Changed(whole, random, format);
            foreach (bool forgiving in new[] { false, true })
            {
                CgmFile? file = null;
                Exception? failure = Record.Exception(() => file = Load(changed, forgiving));
                Assert.True(
                    failure is null or ImageLoadException,
                    $"seed {seed}, round {round}, forgiving {forgiving}: {failure}");
                read += file is null ? 0 : 1;
            }
        }

        Assert.InRange(read, 3000, 5999);
    }

    private static byte[] Changed(byte[] whole, Random random, CgmFileFormat format)
    {
        string[] tokens =
        [
            ";", "'", "\"", "%", "-1", "99999999999", "1e308", "16#FFFF", "LINE", "BEGMFDEFAULTS;", "ENDMFDEFAULTS;",
            "INCRLINE", "\u001b%G\u00ff",
        ];
        byte[] changed = [.. whole];
        for (int i = random.Next(1, 6); i > 0; i--)
        {
            int at = random.Next(2, changed.Length);
            switch (random.Next(4))
            {
                case 0 when format == CgmFileFormat.ClearText:
                    byte[] token = Encoding.Latin1.GetBytes(tokens[random.Next(tokens.Length)]);
                    changed = [.. changed[..at], .. token, .. changed[at..]];
                    break;
                case 1:
                    changed = [.. changed[..at], .. changed[Math.Min(changed.Length, at + random.Next(1, 9))..]];
                    break;
                case 2 when random.Next(10) == 0:
                    changed = changed[..at];
                    break;
                default:
                    changed[at] = (byte)(random.Next(2) == 0 ? 0xFF : random.Next(256));
                    break;
            }

            if (changed.Length < 4)
            {
                return changed;
            }
        }

        return changed;
    }

    private static byte[] Pack(byte[] data)
    {
        var packed = new MemoryStream();
        using (var gzip = new GZipStream(packed, CompressionMode.Compress))
        {
            gzip.Write(data);
        }

        return packed.ToArray();
    }
}
