using Korvan.CAD.FileFormats.Cgm.Classes;

namespace Korvan.CAD.FileFormats.Cgm;

/// <summary>Writes the parameters of one element of a binary metafile in their current precisions (ISO/IEC 8632-3,
/// clause 6).</summary>
public interface IBinaryWriter
{
    /// <summary>Gets the count of parameter bytes that were written; rows of cells start at even ones.</summary>
    int Position { get; }

    /// <summary>Writes an integer.</summary>
    /// <param name="value">The number.</param>
    void WriteInteger(int value);

    /// <summary>Writes an index.</summary>
    /// <param name="value">The index.</param>
    void WriteIndex(int value);

    /// <summary>Writes a name, which is an integer.</summary>
    /// <param name="value">The name.</param>
    void WriteName(int value);

    /// <summary>Writes a colour index.</summary>
    /// <param name="value">The number.</param>
    void WriteColorIndex(int value);

    /// <summary>Writes an enumerated value.</summary>
    /// <param name="value">The number.</param>
    void WriteEnumeration(int value);

    /// <summary>Writes an unsigned integer.</summary>
    /// <param name="value">The number.</param>
    /// <param name="bits">Its bits: 8, 16, 24 or 32.</param>
    void WriteUnsigned(long value, int bits);

    /// <summary>Writes a real number.</summary>
    /// <param name="value">The number.</param>
    void WriteReal(double value);

    /// <summary>Writes a coordinate or length in VDC.</summary>
    /// <param name="value">The number.</param>
    void WriteVdc(double value);

    /// <summary>Writes a viewport coordinate.</summary>
    /// <param name="value">The coordinate.</param>
    void WriteViewportCoordinate(VC value);

    /// <summary>Writes a point.</summary>
    /// <param name="value">The point.</param>
    void WritePoint(CgmPoint value);

    /// <summary>Writes a direct colour.</summary>
    /// <param name="value">The colour.</param>
    void WriteDirectColor(CgmColor value);

    /// <summary>Writes one colour component as it is coded.</summary>
    /// <param name="value">The number.</param>
    void WriteColorComponent(long value);

    /// <summary>Writes a string.</summary>
    /// <param name="value">The text.</param>
    void WriteString(string value);

    /// <summary>Writes bytes as a data record.</summary>
    /// <param name="value">The bytes.</param>
    void WriteData(byte[] value);

    /// <summary>Writes a structured data record.</summary>
    /// <param name="value">The values.</param>
    void WriteStructuredData(StructuredDataRecord value);

    /// <summary>Writes bytes without a length.</summary>
    /// <param name="value">The bytes.</param>
    void WriteBytes(byte[] value);
}
