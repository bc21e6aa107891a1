using System;
using System.Collections.Generic;
using static Korvan.CAD.Input.LoadDefectCode;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>
/// An ISO 10303-21 file in memory: its bytes and the positions of its records. Several threads scan pieces of the DATA
/// section. The start of a piece is a guess; its result counts only if the piece ahead of it ends exactly there.
/// </summary>
internal sealed class StepFile
{
    private const int MinPieceLength = 1 << 20;

    private readonly StepDefects _defects = new();
    private readonly List<(int Start, int End)> _damaged = [];
    private readonly List<StepIndex> _parts = [];
    private bool _isInData;

    private StepFile(byte[] data, List<StepHeaderRecord> header)
    {
        Data = data;
        Header = header;
    }

    internal byte[] Data { get; }

    internal List<StepHeaderRecord> Header { get; }

    internal StepIndex Index { get; private set; } = new();

    /// <summary>Gets the defects that were found.</summary>
    internal StepDefects Defects => _defects;

    /// <summary>Gets the ranges of records that are left out because they are damaged.</summary>
    internal List<(int Start, int End)> Damaged => _damaged;

    /// <summary>Gets or sets whether records have defects that saving repairs.</summary>
    internal bool NeedsRepair { get; set; }

    /// <summary>Gets the offset of the ENDSEC keyword of the last DATA section; new records are written ahead of
    /// it.</summary>
    internal int DataEnd { get; private set; }

    /// <summary>Gets the keywords that are missing at the end of the file.</summary>
    internal string Tail { get; private set; } = string.Empty;

    /// <summary>Gets whether there is no DATA section, or the scan gave up because of too many defects.</summary>
    internal bool IsHopeless { get; private set; }

    /// <summary>Reads the header.</summary>
    /// <exception cref="StepException">The header is missing or damaged.</exception>
    internal static StepFile Open(byte[] data, out int end) => new(data, StepHeader.Read(data, out end));

    /// <summary>Scans the sections after the header.</summary>
    /// <param name="start">The offset after the header.</param>
    /// <param name="keywords">The names of the entities.</param>
    /// <param name="arities">The number of attributes of each entity; -1 for an abstract one.</param>
    internal void ScanData(int start, KeywordTable keywords, int[] arities)
    {
        int at = start;
        bool hasData = false;
        try
        {
            while (true)
            {
                at = StepCharacters.Skip(Data, at);
                StepParser parser = new(Data, at);
                string keyword = parser.Keyword();
                switch (keyword)
                {
                    case "DATA":
                        int begin = SkipParameters(parser);
                        hasData = true;
                        at = DataSection(begin, keywords, arities);
                        break;
                    case "END-ISO-10303-21":
                        Finish(hasData, at);
                        return;
                    case "ANCHOR" or "REFERENCE" or "SIGNATURE":
                        at = SkipSection(parser.At);
                        break;
                    default:
                        throw new StepException(
                            InvalidSection,
                            at,
                            at < Data.Length ? "a section was expected" : "'END-ISO-10303-21;' is missing");
                }
            }
        }
        catch (StepException e)
        {
            _defects.Add(new StepDefect(e.Code, e.Offset, 0, e.Message));
            at = _isInData ? DataEnd : at;
            _damaged.Add((at, Data.Length));
            Tail = (_isInData ? "ENDSEC;\n" : string.Empty) + "END-ISO-10303-21;\n";
            Finish(hasData, at);
        }
    }

    private void Finish(bool hasData, int at)
    {
        if (!hasData)
        {
            _defects.Add(new StepDefect(InvalidSection, at, 0, "there is no DATA section"));
            IsHopeless = true;
        }

        DataEnd = DataEnd > 0 ? DataEnd : at;
        Index = _parts.Count == 1 ? _parts[0] : StepIndex.Join(_parts);
        _parts.Clear();
    }

    private static int SkipParameters(StepParser parser)
    {
        if (StepCharacters.Skip(parser.Data, parser.At) is var at && at < parser.Data.Length && parser.Data[at] == '(')
        {
            parser.List();
        }

        parser.Expect(';');
        return parser.At;
    }

    private int SkipSection(int at)
    {
        int end = Data.AsSpan(at).IndexOf("ENDSEC;"u8);
        return end >= 0 ? at + end + 7 : throw new StepException(InvalidSection, at, "a section has no ENDSEC");
    }

    // Returns the offset after the section.
    private int DataSection(int start, KeywordTable keywords, int[] arities)
    {
        _isInData = true;
        int at = ScanPieces(start, keywords, arities);
        DataEnd = at;
        StepParser parser = new(Data, at);
        if (parser.Keyword() != "ENDSEC")
        {
            throw at < Data.Length
                ? new StepException(InvalidSection, at, "a record or 'ENDSEC;' was expected")
                : new StepException(Truncated, at, "the file ends within the DATA section");
        }

        parser.Expect(';');
        _isInData = false;
        return parser.At;
    }

    private int ScanPieces(int start, KeywordTable keywords, int[] arities)
    {
        int[] starts = PieceStarts(start);
        StepScanner[] scanners = new StepScanner[starts.Length - 1];
        ForkedProcess.RunPieces(scanners.Length, i =>
        {
            scanners[i] = new StepScanner(Data, keywords, arities);
            scanners[i].Scan(starts[i], starts[i + 1]);
        });
        int at = start;
        for (int i = 0; i < scanners.Length; i++)
        {
            StepScanner scanner = scanners[i];
            if (at != starts[i] && at < starts[i + 1])
            {
                scanner = new StepScanner(Data, keywords, arities);
                scanner.Scan(at, starts[i + 1]);
            }
            else if (at != starts[i])
            {
                continue;
            }

            Accept(scanner);
            at = scanner.At;
            if (at < starts[i + 1])
            {
                break;
            }
        }

        return at;
    }

    private void Accept(StepScanner scanner)
    {
        _parts.Add(scanner.Index);
        _defects.Add(scanner.Defects);
        _damaged.AddRange(scanner.Damaged);
        IsHopeless |= scanner.IsHopeless;
    }

    // The last element is the end of the file.
    private int[] PieceStarts(int start)
    {
        int count = Math.Clamp((Data.Length - start) / MinPieceLength, 1, Environment.ProcessorCount);
        List<int> starts = [StepCharacters.Skip(Data, start)];
        for (int i = 1; i < count; i++)
        {
            int nominal = start + (int)((long)(Data.Length - start) * i / count);
            int line = Data.AsSpan(nominal).IndexOf("\n#"u8);
            if (line >= 0 && nominal + line + 1 > starts[^1])
            {
                starts.Add(nominal + line + 1);
            }
        }

        starts.Add(Data.Length);
        return [.. starts];
    }
}
