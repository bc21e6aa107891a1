using Korvan.CAD.FileFormats.Cgm.Classes;

namespace Korvan.CAD.FileFormats.Cgm;

/// <summary>Takes the elements of a clear text metafile (ISO/IEC 8632-4).</summary>
public interface IClearTextWriter
{
    /// <summary>Writes the word of an element.</summary>
    /// <param name="keyword">The word.</param>
    void BeginElement(string keyword);

    /// <summary>Writes the semicolon behind an element.</summary>
    void EndElement();

    /// <summary>Writes a whole number.</summary>
    /// <param name="value">The number.</param>
    void WriteInteger(int value);

    /// <summary>Writes a word as it is.</summary>
    /// <param name="value">The word.</param>
    void WriteWord(string value);

    /// <summary>Writes a real number.</summary>
    /// <param name="value">The number.</param>
    void WriteReal(double value);

    /// <summary>Writes a coordinate or length.</summary>
    /// <param name="value">The number.</param>
    void WriteVdc(double value);

    /// <summary>Writes a point in brackets.</summary>
    /// <param name="value">The point.</param>
    void WritePoint(CgmPoint value);

    /// <summary>Writes a colour by its components.</summary>
    /// <param name="value">The colour.</param>
    void WriteDirectColor(CgmColor value);

    /// <summary>Writes a text in quotes.</summary>
    /// <param name="value">The text.</param>
    void WriteString(string value);

    /// <summary>Writes bytes as a text in quotes.</summary>
    /// <param name="value">The bytes.</param>
    void WriteData(byte[] value);

    /// <summary>Writes values with their types.</summary>
    /// <param name="value">The values.</param>
    void WriteStructuredData(StructuredDataRecord value);
}
