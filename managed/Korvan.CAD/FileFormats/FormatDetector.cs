using System;
using System.Buffers.Binary;
using System.IO;
using System.IO.Compression;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cgm.Import;
using Korvan.CAD.Raster;

namespace Korvan.CAD.FileFormats;

/// <summary>Tells formats apart by their first bytes.</summary>
internal static class FormatDetector
{
    /// <summary>How many bytes are enough.</summary>
    internal const int HeadLength = 4096;

    internal static bool CanRead(FileFormat format)
    {
        return format is (>= FileFormat.DxfCadR010 and <= FileFormat.DxfCadR2013)
            or FileFormat.IFC2X3 or FileFormat.IFC4 or FileFormat.Cgm || RasterLoader.CanRead(format);
    }

    internal static FileFormat Detect(ReadOnlySpan<byte> head)
    {
        if (head.Length == 0)
        {
            return FileFormat.Undefined;
        }

        FileFormat signed = BySignature(head);
        if (signed != FileFormat.Undefined)
        {
            return signed;
        }

        return LooksLikeDxf(head) ? DxfFormat(head) : ByText(head);
    }

    private static FileFormat BySignature(ReadOnlySpan<byte> head)
    {
        ReadOnlySpan<byte> riff = "RIFF"u8;
        return head switch
        {
            _ when head.StartsWith(BinaryTags.Sentinel) => DxfFormat(head),
            _ when head.StartsWith("AC10"u8) && head.Length > 6 => DwgFormat(head),
            _ when head.StartsWith("AC1."u8) => FileFormat.CadR1_4,
            _ when head.StartsWith("AC2."u8) => FileFormat.CadR2_10,
            _ when head.StartsWith("%PDF-"u8) => FileFormat.Pdf,
            _ when head.StartsWith("\u0089PNG"u8) || head.StartsWith((ReadOnlySpan<byte>)[0x89, 0x50, 0x4E, 0x47])
                => FileFormat.Png,
            _ when head.StartsWith((ReadOnlySpan<byte>)[0xFF, 0xD8, 0xFF]) => FileFormat.Jpeg,
            _ when head.StartsWith("GIF8"u8) => FileFormat.Gif,
            _ when head.StartsWith("BM"u8) && head.Length > 14 => FileFormat.Bmp,
            _ when head.StartsWith((ReadOnlySpan<byte>)[0x49, 0x49, 0x2A, 0]) => FileFormat.Tiff,
            _ when head.StartsWith((ReadOnlySpan<byte>)[0x4D, 0x4D, 0, 0x2A]) => FileFormat.Tiff,
            _ when head.StartsWith((ReadOnlySpan<byte>)[0x49, 0x49, 0x2B, 0]) => FileFormat.Tiff,
            _ when head.StartsWith((ReadOnlySpan<byte>)[0x4D, 0x4D, 0, 0x2B]) => FileFormat.Tiff,
            _ when head.StartsWith((ReadOnlySpan<byte>)[0xFF, 0x4F, 0xFF, 0x51]) => FileFormat.Jpeg2000,
            _ when head.StartsWith("\0\0\0\fjP  \r\n"u8) => FileFormat.Jpeg2000,
            _ when head.StartsWith("8BPS"u8) => FileFormat.Psd,
            _ when head.StartsWith(riff) && head.Length > 12 && head[8..12].SequenceEqual("WEBP"u8) => FileFormat.Webp,
            _ when head.Length > 132 && head[128..132].SequenceEqual("DICM"u8) => FileFormat.Dicom,
            _ when head.StartsWith("glTF"u8) => FileFormat.Glb,
            _ when head.StartsWith("(DWF V"u8) => FileFormat.Dwf,
            _ when head.StartsWith("Kaydara FBX Binary"u8) => FileFormat.Fbx,
            _ when head.StartsWith("U3D\0"u8) => FileFormat.U3D,
            _ when head.StartsWith("DRACO"u8) => FileFormat.Draco,
            _ when head.StartsWith("AutoCAD DXB"u8) => FileFormat.Dxb,
            _ when head.StartsWith("PK\u0003\u0004"u8) => ZipFormat(head),
            _ when CgmSource.IsPacked(head) => GzipFormat(head),
            _ when CgmSource.IsBinary(head) => FileFormat.Cgm,
            _ => FileFormat.Undefined,
        };
    }

    private static FileFormat ByText(ReadOnlySpan<byte> head)
    {
        return head switch
        {
            _ when head.StartsWith("solid "u8) => FileFormat.Stl,
            _ when IsIges(head) => FileFormat.Iges,
            _ when head.TrimStart("\uFEFF \t\r\n"u8).StartsWith("ISO-10303-21"u8) => StepFormat(head),
            _ when IsIfc2X3Xml(head) => FileFormat.IFC2X3,
            _ when CgmSource.IsClearText(head) => FileFormat.Cgm,
            _ when head.IndexOf("<svg"u8) >= 0 => FileFormat.Svg,
            _ when head.IndexOf("<COLLADA"u8) >= 0 => FileFormat.Collada,
            _ => FileFormat.Undefined,
        };
    }

    // Records of 80 characters: the 73rd names the section, the others behind it count; the first section is "S"
    // (IGES 5.3, 2.2.1).
    private static bool IsIges(ReadOnlySpan<byte> head)
    {
        const int Section = 72;
        const int RecordLength = 80;
        return head.Length >= RecordLength && head[Section] == 'S' &&
            head[(Section + 1)..RecordLength].TrimStart(" 0"u8).SequenceEqual("1"u8);
    }

    /// <summary>Tells a building model in XML of whatever edition.</summary>
    internal static bool IsIfcXml(ReadOnlySpan<byte> data)
    {
        ReadOnlySpan<byte> head = data[..Math.Min(data.Length, HeadLength)].TrimStart("\uFEFF \t\r\n"u8);
        return head.StartsWith("<"u8) && (head.IndexOf("ifcXML"u8) >= 0 || head.IndexOf("iso_10303_28"u8) >= 0);
    }

    private static bool IsIfc2X3Xml(ReadOnlySpan<byte> head) =>
        IsIfcXml(head) && head.IndexOf("iso_10303_28"u8) >= 0 && head.IndexOf("ifcXML/IFC2x3"u8) >= 0;

    /// <summary>Tells the format of a file of ISO 10303-21 by the schema that its header names.</summary>
    internal static FileFormat StepFormat(ReadOnlySpan<byte> data)
    {
        int schema = data.IndexOf("FILE_SCHEMA"u8);
        int name = schema < 0 ? -1 : data[schema..].IndexOf((byte)'\'');
        ReadOnlySpan<byte> stated = name < 0 ? [] : data[(schema + name + 1)..];
        bool isModel = stated.Length > 3 && Ascii.EqualsIgnoreCase(stated[..3], "IFC"u8);
        return !isModel ? FileFormat.Stp : stated[3] == '2' ? FileFormat.IFC2X3 : FileFormat.IFC4;
    }

    // A packed file is told by the beginning of its first entry.
    private static FileFormat ZipFormat(ReadOnlySpan<byte> head)
    {
        const int FixedLength = 30;
        if (head.Length < FixedLength)
        {
            return FileFormat.Undefined;
        }

        int method = BinaryPrimitives.ReadUInt16LittleEndian(head[8..]);
        int nameLength = BinaryPrimitives.ReadUInt16LittleEndian(head[26..]);
        int start = FixedLength + nameLength + BinaryPrimitives.ReadUInt16LittleEndian(head[28..]);
        ReadOnlySpan<byte> name = head[FixedLength..Math.Min(head.Length, FixedLength + nameLength)];
        bool isModel = name.EndsWith(".ifc"u8) || name.EndsWith(".IFC"u8);
        if (!isModel || start >= head.Length)
        {
            return FileFormat.Undefined;
        }

        FileFormat format = StepFormat(method == 0 ? head[start..] : Inflate(head[start..], false));
        return format == FileFormat.Stp ? FileFormat.IFC4 : format;
    }

    private static FileFormat GzipFormat(ReadOnlySpan<byte> head)
    {
        byte[] content = Inflate(head, true);
        return CgmSource.IsBinary(content) || CgmSource.IsClearText(content) ? FileFormat.Cgm : FileFormat.Undefined;
    }

    // As much as there is: the head ends somewhere within.
    private static byte[] Inflate(ReadOnlySpan<byte> packed, bool isGzip)
    {
        byte[] content = new byte[HeadLength];
        int count = 0;
        try
        {
            MemoryStream source = new(packed.ToArray());
            using Stream stream = isGzip ? new GZipStream(source, CompressionMode.Decompress) : new DeflateStream(source, CompressionMode.Decompress);
            for (int read = 1; read > 0 && count < content.Length; count += read)
            {
                read = stream.Read(content, count, content.Length - count);
            }
        }
        catch (InvalidDataException)
        {
            return content[..count];
        }

        return content[..count];
    }

    private static FileFormat DwgFormat(ReadOnlySpan<byte> head) => Encoding.ASCII.GetString(head[..6]) switch
    {
        "AC1001" => FileFormat.CadR2_22,
        "AC1002" => FileFormat.CadR2_5,
        "AC1003" => FileFormat.CadR2_6,
        "AC1004" => FileFormat.CadR9,
        "AC1006" => FileFormat.CadR010,
        "AC1009" => FileFormat.CadR011_012,
        "AC1012" => FileFormat.CadR013,
        "AC1014" => FileFormat.CadR014,
        "AC1015" => FileFormat.CadR2000,
        "AC1018" => FileFormat.CadR2004,
        "AC1021" => FileFormat.CadR2007,
        "AC1024" => FileFormat.CadR2010,
        "AC1027" => FileFormat.CadR2013,
        "AC1032" => FileFormat.CadR2018,
        _ => FileFormat.Undefined,
    };

    // A text interchange file begins with group code 0 and SECTION, perhaps after comments.
    private static bool LooksLikeDxf(ReadOnlySpan<byte> head)
    {
        ReadOnlySpan<byte> rest = head.StartsWith("\uFEFF"u8) ? head[3..] : head;
        while (true)
        {
            ReadOnlySpan<byte> code = TakeLine(ref rest).Trim(" \t"u8);
            ReadOnlySpan<byte> value = TakeLine(ref rest).Trim(" \t"u8);
            if (rest.IsEmpty && head.Length == HeadLength && head.TrimStart(" \t"u8).StartsWith("999"u8))
            {
                return true; // comments alone, as far as can be seen
            }

            if (!code.SequenceEqual("999"u8))
            {
                return code.SequenceEqual("0"u8) && (value.SequenceEqual("SECTION"u8) || value.SequenceEqual("EOF"u8));
            }
        }
    }

    private static ReadOnlySpan<byte> TakeLine(ref ReadOnlySpan<byte> rest)
    {
        int end = rest.IndexOfAny((byte)'\r', (byte)'\n');
        if (end < 0)
        {
            ReadOnlySpan<byte> last = rest;
            rest = [];
            return last;
        }

        ReadOnlySpan<byte> line = rest[..end];
        bool pair = rest[end] == '\r' && end + 1 < rest.Length && rest[end + 1] == '\n';
        rest = rest[(end + (pair ? 2 : 1))..];
        return line;
    }

    private static FileFormat DxfFormat(ReadOnlySpan<byte> head)
    {
        int variable = head.IndexOf("$ACADVER"u8);
        int code = variable < 0 ? -1 : head[variable..].IndexOf("AC1"u8);
        return code < 0 || variable + code + 6 > head.Length
            ? FileFormat.DxfCadR012
            : DxfRelease.ToFileFormat(DrawingRelease.Parse(Encoding.ASCII.GetString(head.Slice(variable + code, 6))));
    }
}
