using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.ImageOptions;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>Metafiles that were read in spite of their damage are written without it.</summary>
public sealed class DamagedSaveTests
{
    private const string Page = "BEGPIC 'p';\nBEGPICBODY;\nLINE (0,0) (9,9);\nENDPIC;\n";

    [Theory]
    [InlineData("BEGMF;\nMFVERSION 1;\n" + Page + "ENDMF;\n", CgmFileFormat.ClearText, 0)] // without a name
    [InlineData("BEGMF 'x';\nMFVERSION 1;\nLINETYPE;\n" + Page, CgmFileFormat.ClearText, 0)] // without an end
    [InlineData("BEGMF 'x';\nMFVERSION;\n" + Page + "ENDMF;\n", CgmFileFormat.Binary, 0)] // without a version
    [InlineData("BEGMF 'x';\nLINETYPE;\nALIEN 1;\n" + Page + "ENDMF;\n", CgmFileFormat.Binary, 1)] // no binary element
    public void What_is_whole_is_written_and_the_rest_is_listed(string text, CgmFileFormat encoding, int leftOut)
    {
        var image = (CgmImage)Image.Load(Bytes(text), "test.cgm", new LoadOptions { IgnoreErrors = true });
        var options = new CgmOptions { Encoding = encoding };
        using var saved = new MemoryStream();
        image.Save(saved, options);
        Assert.Equal(leftOut, options.RenderResult!.Failures.Length);
        saved.Position = 0;
        Assert.IsType<CgmImage>(Image.Load(saved, "again.cgm", new LoadOptions()));
        saved.Position = 0;
        CgmFile again = CgmFile.Load(saved);
        Assert.DoesNotContain(again.Messages, static one => one.Severity == Severity.Error);
        Assert.Single(again.Commands.OfType<Polyline>());
    }

    [Theory]
    [InlineData("", CgmFileFormat.ClearText)]
    [InlineData("VDCTYPE INTEGER;\n", CgmFileFormat.Binary)]
    public void Fractions_in_integer_coordinates_are_kept(string type, CgmFileFormat encoding)
    {
        CgmFile file = CgmFile.Load(Bytes("BEGMF 'x';\n" + type
            + "BEGPIC 'p';\nVDCEXT (0,0) (9,9);\nBEGPICBODY;\nLINE (0,0.5) (9,9);\nENDPIC;\nENDMF;\n"));
        Assert.Single(file.Messages, static one => one.Severity == Severity.Warning);
        using var saved = new MemoryStream();
        file.Save(saved, encoding);
        saved.Position = 0;
        CgmFile again = CgmFile.Load(saved);
        Assert.Empty(again.Messages);
        Assert.Equal(0.5, again.Commands.OfType<Polyline>().Single().Points[0].Y);
    }

    [Fact]
    public void A_sound_metafile_with_a_command_that_cannot_be_written_is_not_written()
    {
        CgmFile file = CgmFile.Load(Bytes("BEGMF 'x';\nALIEN 1;\n" + Page + "ENDMF;\n"));
        using var saved = new MemoryStream();
        Assert.Throws<ImageSaveException>(() => file.Save(saved, CgmFileFormat.Binary));
        Assert.Equal(0, saved.Length);
    }

    private static MemoryStream Bytes(string text) => new(Encoding.Latin1.GetBytes(text));
}
