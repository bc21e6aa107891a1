using System;
using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>
/// A file of ISO 10303-21 in memory: its bytes, and where its records are. The section of data is scanned in several
/// pieces at a time. Where a piece begins is a guess; it counts only if the piece before it ends exactly there.
/// </summary>
internal sealed class StepFile
{
    private const int LeastPiece = 1 << 20;

    private readonly StepErrors _errors = new();
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

    /// <summary>Gets the damage that was found.</summary>
    internal StepErrors Errors => _errors;

    /// <summary>Gets the places of records that are left out because of damage.</summary>
    internal List<(int Start, int End)> Damaged => _damaged;

    /// <summary>Gets the place of the word that ends the last section of data, ahead of which records can be
    /// added.</summary>
    internal int DataEnd { get; private set; }

    /// <summary>Gets what is missing at the end of the file.</summary>
    internal string Tail { get; private set; } = string.Empty;

    /// <summary>Gets whether there is no data, or so much is damaged that not all was looked at.</summary>
    internal bool IsHopeless { get; private set; }

    /// <summary>Reads the header.</summary>
    /// <exception cref="StepException">It is not there, or damaged.</exception>
    internal static StepFile Open(byte[] data, out int end) => new(data, StepHeader.Read(data, out end));

    /// <summary>Scans the sections behind the header.</summary>
    /// <param name="start">The place behind the header.</param>
    /// <param name="keywords">The names of the entities.</param>
    /// <param name="arities">How many attributes each has; -1 for one that has no instances.</param>
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
                string word = parser.Keyword();
                switch (word)
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
                            at, at < Data.Length ? "a section was expected" : "'END-ISO-10303-21;' is missing");
                }
            }
        }
        catch (StepException e)
        {
            _errors.Add(new StepError(e.Offset, 0, e.Message));
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
            _errors.Add(new StepError(at, 0, "there is no section of data"));
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
        return end >= 0 ? at + end + 7 : throw new StepException(at, "a section has no ENDSEC");
    }

    // Gives the place behind the section.
    private int DataSection(int start, KeywordTable keywords, int[] arities)
    {
        _isInData = true;
        int at = ScanPieces(start, keywords, arities);
        DataEnd = at;
        StepParser parser = new(Data, at);
        if (parser.Keyword() != "ENDSEC")
        {
            string what = at < Data.Length ? "a record or 'ENDSEC;' was expected" : "the file ends within the data";
            throw new StepException(at, what);
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
        _errors.Add(scanner.Errors);
        _damaged.AddRange(scanner.Damaged);
        IsHopeless |= scanner.IsHopeless;
    }

    // The last one is the end of the file.
    private int[] PieceStarts(int start)
    {
        int count = Math.Clamp((Data.Length - start) / LeastPiece, 1, Environment.ProcessorCount);
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
