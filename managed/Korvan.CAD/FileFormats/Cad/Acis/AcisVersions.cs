using System;
using System.Buffers.Binary;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>The versions of the format that differ in their form.</summary>
internal static class AcisVersions
{
    /// <summary>Before it there is one line of header, and flags are 0 and 1.</summary>
    internal const int Keywords = 200;

    /// <summary>From it on the second value of a record is an index of the history.</summary>
    internal const int History = 700;

    /// <summary>From it on the end names the successor of the modeler.</summary>
    internal const int Successor = 21800;

    /// <summary>Returns the version that binary data state; 0 where they state none.</summary>
    internal static int Of(ReadOnlySpan<byte> data)
    {
        const int nameLength = 15;
        return data.Length >= nameLength + sizeof(int) && data[0] == 'A'
            ? BinaryPrimitives.ReadInt32LittleEndian(data[nameLength..]) : 0;
    }

    /// <summary>Returns the version that enciphered text states; 0 where it states none.</summary>
    internal static int Of(string line)
    {
        const int cipher = 159;
        int version = 0;
        foreach (char c in line.AsSpan().TrimStart())
        {
            int digit = cipher - c - '0';
            if (digit is < 0 or > 9 || version > Successor)
            {
                break;
            }

            version = (version * 10) + digit;
        }

        return version;
    }

    /// <summary>Returns the name of the modeler that ends the data.</summary>
    internal static string ModelerOf(int version) => version >= Successor ? "ASM" : "ACIS";
}
