using Korvan.CAD.FileFormats.Cgm.Classes;

namespace Korvan.CAD.FileFormats.Cgm;

/// <summary>Reads the parameters of one element of a binary metafile in their current precisions (ISO/IEC 8632-3,
/// clause 6).</summary>
public interface IBinaryReader
{
    /// <summary>Gets whether the element has more parameters.</summary>
    bool HasMore { get; }

    /// <summary>Gets the count of parameter bytes that were read; rows of cells start at even ones.</summary>
    int Position { get; }

    /// <summary>Reads an integer.</summary>
    int ReadInteger();

    /// <summary>Reads an index.</summary>
    int ReadIndex();

    /// <summary>Reads a name, which is an integer.</summary>
    int ReadName();

    /// <summary>Reads a colour index.</summary>
    int ReadColorIndex();

    /// <summary>Reads an enumerated value.</summary>
    int ReadEnumeration();

    /// <summary>Reads an unsigned integer.</summary>
    /// <param name="bits">Its bits: 8, 16, 24 or 32.</param>
    long ReadUnsigned(int bits);

    /// <summary>Reads a real number.</summary>
    double ReadReal();

    /// <summary>Reads a coordinate or length in VDC.</summary>
    double ReadVdc();

    /// <summary>Reads a viewport coordinate.</summary>
    VC ReadViewportCoordinate();

    /// <summary>Reads a point.</summary>
    CgmPoint ReadPoint();

    /// <summary>Reads a direct colour.</summary>
    CgmColor ReadDirectColor();

    /// <summary>Reads one colour component as it is coded.</summary>
    long ReadColorComponent();

    /// <summary>Reads a string.</summary>
    string ReadString();

    /// <summary>Reads the bytes of a data record.</summary>
    byte[] ReadData();

    /// <summary>Reads a structured data record.</summary>
    StructuredDataRecord ReadStructuredData();

    /// <summary>Reads all remaining bytes of the element.</summary>
    byte[] ReadRest();
}
