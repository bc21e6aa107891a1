using Korvan.CAD.FileFormats.Cgm.Classes;

namespace Korvan.CAD.FileFormats.Cgm;

/// <summary>Gives the parameters of one element of a binary metafile, each in the precision that the file stated
/// (ISO/IEC 8632-3, clause 6).</summary>
public interface IBinaryReader
{
    /// <summary>Gets whether the element has more parameters.</summary>
    bool HasMore { get; }

    /// <summary>Gets how many bytes of the parameters were read; lines of cells begin at even ones.</summary>
    int Position { get; }

    /// <summary>Gives a whole number.</summary>
    int ReadInteger();

    /// <summary>Gives an index.</summary>
    int ReadIndex();

    /// <summary>Gives a name, which is a number.</summary>
    int ReadName();

    /// <summary>Gives the number of a colour.</summary>
    int ReadColorIndex();

    /// <summary>Gives the number of one of a few values.</summary>
    int ReadEnumeration();

    /// <summary>Gives a number without sign.</summary>
    /// <param name="bits">Its bits: 8, 16, 24 or 32.</param>
    long ReadUnsigned(int bits);

    /// <summary>Gives a real number.</summary>
    double ReadReal();

    /// <summary>Gives a coordinate or length.</summary>
    double ReadVdc();

    /// <summary>Gives a coordinate of the device.</summary>
    VC ReadViewportCoordinate();

    /// <summary>Gives a point.</summary>
    CgmPoint ReadPoint();

    /// <summary>Gives a colour by its components.</summary>
    CgmColor ReadDirectColor();

    /// <summary>Gives one component of a colour as it stands in the file.</summary>
    long ReadColorComponent();

    /// <summary>Gives a text.</summary>
    string ReadString();

    /// <summary>Gives the bytes of a text that is data.</summary>
    byte[] ReadData();

    /// <summary>Gives values that tell their own types.</summary>
    StructuredDataRecord ReadStructuredData();

    /// <summary>Gives all bytes that are left of the element.</summary>
    byte[] ReadRest();
}
