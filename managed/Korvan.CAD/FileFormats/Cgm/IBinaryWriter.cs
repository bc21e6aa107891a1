using Korvan.CAD.FileFormats.Cgm.Classes;

namespace Korvan.CAD.FileFormats.Cgm;

/// <summary>Takes the parameters of one element of a binary metafile, each in the precision that the file stated
/// (ISO/IEC 8632-3, clause 6).</summary>
public interface IBinaryWriter
{
    /// <summary>Gets how many bytes of parameters were written; lines of cells begin at even ones.</summary>
    int Position { get; }

    /// <summary>Writes a whole number.</summary>
    /// <param name="value">The number.</param>
    void WriteInteger(int value);

    /// <summary>Writes an index.</summary>
    /// <param name="value">The index.</param>
    void WriteIndex(int value);

    /// <summary>Writes a name, which is a number.</summary>
    /// <param name="value">The name.</param>
    void WriteName(int value);

    /// <summary>Writes the number of a colour.</summary>
    /// <param name="value">The number.</param>
    void WriteColorIndex(int value);

    /// <summary>Writes the number of one of a few values.</summary>
    /// <param name="value">The number.</param>
    void WriteEnumeration(int value);

    /// <summary>Writes a number without sign.</summary>
    /// <param name="value">The number.</param>
    /// <param name="bits">Its bits: 8, 16, 24 or 32.</param>
    void WriteUnsigned(long value, int bits);

    /// <summary>Writes a real number.</summary>
    /// <param name="value">The number.</param>
    void WriteReal(double value);

    /// <summary>Writes a coordinate or length.</summary>
    /// <param name="value">The number.</param>
    void WriteVdc(double value);

    /// <summary>Writes a coordinate of the device.</summary>
    /// <param name="value">The coordinate.</param>
    void WriteViewportCoordinate(VC value);

    /// <summary>Writes a point.</summary>
    /// <param name="value">The point.</param>
    void WritePoint(CgmPoint value);

    /// <summary>Writes a colour by its components.</summary>
    /// <param name="value">The colour.</param>
    void WriteDirectColor(CgmColor value);

    /// <summary>Writes one component of a colour as it shall stand in the file.</summary>
    /// <param name="value">The number.</param>
    void WriteColorComponent(long value);

    /// <summary>Writes a text.</summary>
    /// <param name="value">The text.</param>
    void WriteString(string value);

    /// <summary>Writes bytes as a text that is data.</summary>
    /// <param name="value">The bytes.</param>
    void WriteData(byte[] value);

    /// <summary>Writes values with their types.</summary>
    /// <param name="value">The values.</param>
    void WriteStructuredData(StructuredDataRecord value);

    /// <summary>Writes bytes as they are.</summary>
    /// <param name="value">The bytes.</param>
    void WriteBytes(byte[] value);
}
