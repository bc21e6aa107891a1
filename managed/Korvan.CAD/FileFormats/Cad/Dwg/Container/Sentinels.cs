using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>Sequences of 16 bytes around parts of drawing databases; those after a part are the complement of those
/// before it. Source: Open Design Specification for .dwg files, 5.4.1, chapters 3, 9, 10, 14 and 26.</summary>
internal static class Sentinels
{
    internal const int Length = 16;

    /// <summary>Gets the sequence after the locators of a file header.</summary>
    internal static ReadOnlySpan<byte> EndOfFileHeader =>
    [
        0x95, 0xA0, 0x4E, 0x28, 0x99, 0x82, 0x1A, 0xE5, 0x5E, 0x41, 0xE0, 0x5F, 0x9D, 0x3A, 0x4D, 0x00,
    ];

    internal static ReadOnlySpan<byte> Header =>
    [
        0xCF, 0x7B, 0x1F, 0x23, 0xFD, 0xDE, 0x38, 0xA9, 0x5F, 0x7C, 0x68, 0xB8, 0x4E, 0x6D, 0x33, 0x5F,
    ];

    internal static ReadOnlySpan<byte> Classes =>
    [
        0x8D, 0xA1, 0xC4, 0xB8, 0xC4, 0xA9, 0xF8, 0xC5, 0xC0, 0xDC, 0xF4, 0x5F, 0xE7, 0xCF, 0xB6, 0x8A,
    ];

    internal static ReadOnlySpan<byte> Preview =>
    [
        0x1F, 0x25, 0x6D, 0x07, 0xD4, 0x36, 0x28, 0x28, 0x9D, 0x57, 0xCA, 0x3F, 0x9D, 0x44, 0x10, 0x2B,
    ];

    internal static ReadOnlySpan<byte> SecondHeader =>
    [
        0xD4, 0x7B, 0x21, 0xCE, 0x28, 0x93, 0x9F, 0xBF, 0x53, 0x24, 0x40, 0x09, 0x12, 0x3C, 0xAA, 0x01,
    ];

    /// <summary>Returns the sequence after a part.</summary>
    /// <param name="start">The sequence before it.</param>
    internal static byte[] EndOf(ReadOnlySpan<byte> start)
    {
        byte[] end = new byte[Length];
        for (int i = 0; i < Length; i++)
        {
            end[i] = (byte)~start[i];
        }

        return end;
    }
}
