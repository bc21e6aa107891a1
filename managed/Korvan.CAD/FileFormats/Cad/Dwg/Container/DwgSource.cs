using System;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Encodings;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>The bytes of a drawing database, and what becomes of its defects.</summary>
/// <param name="data">The whole file.</param>
/// <param name="name">Its name in messages.</param>
/// <param name="options">The load options: whether a defect ends the load or is collected.</param>
internal sealed class DwgSource(byte[] data, string name, LoadOptions options)
{
    private const int MaxRatio = 256;

    internal byte[] Data { get; } = data;

    internal string Name { get; } = name;

    internal LoadOptions Options { get; } = options;

    /// <summary>Gets the largest size that a section of this file may have, so that a small file cannot ask for all
    /// memory.</summary>
    internal long MaxSectionSize => Math.Min((Data.Length + 4096L) * MaxRatio, Array.MaxLength);

    /// <summary>Gets whether defects are collected.</summary>
    internal bool IsTolerant => Options.IgnoreErrors;

    /// <summary>Creates the exception for a defect.</summary>
    /// <param name="code">Its kind.</param>
    /// <param name="section">The name of the section, or of another part of the file.</param>
    /// <param name="offset">The byte in the file; -1 if unknown.</param>
    /// <param name="cause">What is wrong.</param>
    internal ImageLoadException Fail(LoadDefectCode code, string section, long offset, string cause) =>
        new(new LoadDefect(code, new LoadPlace(Name, 0, section, offset), cause));

    /// <summary>Collects a defect, or throws it if a defect ends the load.</summary>
    /// <exception cref="ImageLoadException">A defect ends the load.</exception>
    internal void Report(LoadDefectCode code, string section, long offset, string cause)
    {
        ImageLoadException failure = Fail(code, section, offset, cause);
        if (!IsTolerant)
        {
            throw failure;
        }

        Options.Report(failure);
    }

    /// <summary>Returns the size of a section; where its pages cannot hold what the file states, reports that and
    /// returns what they can hold.</summary>
    /// <param name="section">The name of the section.</param>
    /// <param name="stated">The size in bytes that the file states.</param>
    /// <param name="pages">The number of its pages.</param>
    /// <param name="held">The bytes that its pages can hold at most.</param>
    internal long SizeOf(string section, long stated, int pages, long held)
    {
        long limit = Math.Min(held, MaxSectionSize);
        if (stated >= 0 && stated <= limit)
        {
            return stated;
        }

        Report(LoadDefectCode.CountTooLarge, section, -1, $"the section states {stated} bytes in "
            + $"{pages} pages; the pages of the file hold {limit}");
        return limit;
    }

    /// <summary>Returns the encoding of strings of 8-bit characters.</summary>
    /// <param name="codePage">The index of the code page in the file header.</param>
    internal Encoding EncodingOf(int codePage) => Options.SpecifiedEncoding != CodePages.Default
        ? DwgCodePage.Get((int)Options.SpecifiedEncoding)
        : DwgCodePage.Get(CodePageIndex.NameOf(codePage));
}
