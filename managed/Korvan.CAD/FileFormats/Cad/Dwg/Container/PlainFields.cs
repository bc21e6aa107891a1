using System;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>The first 128 bytes of files of release 2004 and later, which are neither masked nor encoded.</summary>
/// <param name="MaintenanceVersion">The maintenance release.</param>
/// <param name="CodePage">The index of the code page.</param>
/// <param name="IsEncrypted">Whether the preview and the properties are encrypted.</param>
internal readonly record struct PlainFields(int MaintenanceVersion, int CodePage, bool IsEncrypted)
{
    private const int Length = 0x80;
    private const int MaintenanceOffset = 0x0B;
    private const int CodePageOffset = 0x13;
    private const int SecurityOffset = 0x18;
    private const int EncryptedData = 1;
    private const int EncryptedProperties = 2;

    /// <summary>Reads the fields.</summary>
    /// <exception cref="CadExceptions.ImageLoadException">The file is shorter, or encrypted.</exception>
    internal static PlainFields Read(DwgSource source)
    {
        byte[] data = source.Data;
        if (data.Length < Length)
        {
            throw source.Fail(LoadDefectCode.Truncated, "file header", data.Length, "the file ends within its header");
        }

        int security = BitConverter.ToInt32(data, SecurityOffset);
        if ((security & EncryptedData) != 0)
        {
            throw source.Fail(LoadDefectCode.Encrypted, "AcDb:Security", SecurityOffset,
                "the drawing is encrypted with a password; save it without one");
        }

        return new PlainFields(data[MaintenanceOffset], BitConverter.ToUInt16(data, CodePageOffset),
            (security & EncryptedProperties) != 0);
    }
}
