using Korvan.CAD.FileFormats.Cgm.Classes;

namespace Korvan.CAD.FileFormats.Cgm;

/// <summary>Writes the elements of a clear text metafile (ISO/IEC 8632-4).</summary>
public interface IClearTextWriter
{
    /// <summary>Writes the keyword of an element.</summary>
    /// <param name="keyword">The keyword.</param>
    void BeginElement(string keyword);

    /// <summary>Writes the terminator of an element.</summary>
    void EndElement();

    /// <summary>Writes an integer.</summary>
    /// <param name="value">The number.</param>
    void WriteInteger(int value);

    /// <summary>Writes a keyword or number as it is.</summary>
    /// <param name="value">The keyword or number.</param>
    void WriteWord(string value);

    /// <summary>Writes a real number.</summary>
    /// <param name="value">The number.</param>
    void WriteReal(double value);

    /// <summary>Writes a coordinate or length in VDC.</summary>
    /// <param name="value">The number.</param>
    void WriteVdc(double value);

    /// <summary>Writes a point in parentheses.</summary>
    /// <param name="value">The point.</param>
    void WritePoint(CgmPoint value);

    /// <summary>Writes a direct colour.</summary>
    /// <param name="value">The colour.</param>
    void WriteDirectColor(CgmColor value);

    /// <summary>Writes a string in quotes.</summary>
    /// <param name="value">The text.</param>
    void WriteString(string value);

    /// <summary>Writes bytes as a string in quotes.</summary>
    /// <param name="value">The bytes.</param>
    void WriteData(byte[] value);

    /// <summary>Writes a structured data record in quotes.</summary>
    /// <param name="value">The values.</param>
    void WriteStructuredData(StructuredDataRecord value);
}
