#!/usr/bin/env python3
"""Makes the program's own sounds and icons in src/ui/win32/res (committed; run again only
to change them). ALARM is a falling two-tone call, AUTO a short soft double chime. The icons
are drawn here: an eye in a green disc (monitoring on), the same in red with a bar (off),
and a blue shield with a K for the windows."""
import math, os, struct

RES = os.path.join(os.path.dirname(__file__), '..', 'src', 'ui', 'win32', 'res')
RATE = 11025

def wav(path, samples):
    data = bytes(max(0, min(255, int(128 + 110 * s))) for s in samples)
    with open(path, 'wb') as f:
        f.write(b'RIFF' + struct.pack('<I', 36 + len(data)) + b'WAVE')
        f.write(b'fmt ' + struct.pack('<IHHIIHH', 16, 1, 1, RATE, RATE, 1, 8))
        f.write(b'data' + struct.pack('<I', len(data)) + data)

def tone(freq, secs, vol=1.0):
    n = int(RATE * secs)
    return [vol * math.sin(2 * math.pi * freq * i / RATE) * min(1, i / 200, (n - i) / 200) for i in range(n)]

def alarm():
    s = []
    for _ in range(3):
        s += tone(1046, 0.12) + tone(784, 0.12)
    return s

def auto():
    return tone(880, 0.08, 0.6) + [0.0] * int(RATE * 0.04) + tone(1318, 0.12, 0.6)

def ico(path, pixel):
    """32x32, 32-bit BGRA icon; pixel(x, y) gives (r, g, b, a) with y from the top."""
    w = h = 32
    rows = []
    for y in range(h - 1, -1, -1):
        rows.append(b''.join(struct.pack('<BBBB', *(lambda p: (p[2], p[1], p[0], p[3]))(pixel(x, y))) for x in range(w)))
    xor = b''.join(rows)
    andmask = b'\x00' * (4 * h)
    bih = struct.pack('<IiiHHIIiiII', 40, w, h * 2, 1, 32, 0, len(xor) + len(andmask), 0, 0, 0, 0)
    img = bih + xor + andmask
    with open(path, 'wb') as f:
        f.write(struct.pack('<HHH', 0, 1, 1))
        f.write(struct.pack('<BBBBHHII', w, h, 0, 0, 1, 32, len(img), 22))
        f.write(img)

def disc(colour, bar=False):
    def px(x, y):
        cx, cy = x - 15.5, y - 15.5
        r = math.hypot(cx, cy)
        if r > 15.5:
            return (0, 0, 0, 0)
        if r > 14:
            return (40, 40, 40, 255)
        # an eye: white almond with a dark pupil
        if abs(cy) < 7 * math.cos(min(abs(cx) / 11, 1.0) * math.pi / 2) and abs(cx) < 11:
            if math.hypot(cx, cy) < 4:
                return (20, 20, 30, 255)
            return (250, 250, 250, 255)
        if bar and abs(cx + cy) < 2.5:
            return (250, 250, 250, 255)
        return colour + (255,)
    return px

def shield(x, y):
    """A blue shield with a white K: the program's window icon."""
    cx = x - 15.5
    if y < 2 or y > 30:
        return (0, 0, 0, 0)
    half = 13 if y < 16 else 13 * (1 - ((y - 16) / 14.5) ** 2) ** 0.5
    if abs(cx) > half:
        return (0, 0, 0, 0)
    if abs(cx) > half - 1.5 or y < 3.5:
        return (20, 40, 90, 255)
    # the letter: a stem and two arms meeting at its middle
    stem = 9 <= x <= 12 and 7 <= y <= 25
    arm = 7 <= y <= 25 and abs((x - 12) - abs(y - 16) * 0.85) < 1.7 and x >= 12
    if stem or arm:
        return (250, 250, 250, 255)
    return (40, 90, 190, 255)

if __name__ == '__main__':
    os.makedirs(RES, exist_ok=True)
    wav(os.path.join(RES, 'alarm.wav'), alarm())
    wav(os.path.join(RES, 'auto.wav'), auto())
    ico(os.path.join(RES, 'an.ico'), disc((30, 150, 60)))
    ico(os.path.join(RES, 'aus.ico'), disc((190, 30, 30), bar=True))
    ico(os.path.join(RES, 'kestrella.ico'), shield)
    print('resources written to', os.path.normpath(RES))
